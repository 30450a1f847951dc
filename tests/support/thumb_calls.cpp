#include "support/thumb_calls.h"

#include "ios_photo.h"
#include "support/expected_bmp.h"
#include "support/guarded_buffer.h"
#include "support/same_bytes.h"

namespace iosphoto::test {

namespace {

ThumbCall openAndDecode(const ThumbCase &thumbCase, const std::string &path, int index)
{
    return [=](char *buffer, ThumbSizes &sizes) {
        ifile file(path.c_str());
        thumbCase.decode(file, index, buffer, sizes.size, sizes.width, sizes.height);
    };
}

ThumbCall callGetBmp(const ThumbCase & /*thumbCase*/, const std::string &path, int index)
{
    return [=](char *buffer, ThumbSizes &sizes) {
        EXPECT_EQ(GetBmp(path.c_str(), index, buffer, sizes.size, sizes.width, sizes.height), 0);
    };
}

ThumbCall callGetThumb(const ThumbCase & /*thumbCase*/, const std::string &path, int index)
{
    return [=](char *buffer, ThumbSizes &sizes) {
        EXPECT_EQ(
            ios_photo_get_thumb(path.c_str(), index, buffer, sizes.width, sizes.height, sizes.size),
            index < 0 ? -1 : 0);
    };
}

} // namespace

const ThumbFunction thumbFunctions[3] = {
    {"Decoder", openAndDecode}, {"GetBmp", callGetBmp}, {"GetThumb", callGetThumb}};

std::ostream &operator<<(std::ostream &stream, const ThumbSizes &sizes)
{
    return stream << sizes.size << " bytes, " << sizes.width << " x " << sizes.height;
}

void expectThumb(const ThumbCall &call, const std::string &image, int width, int height)
{
    for (const Guard guard : {Guard::InFront, Guard::Behind}) {
        GuardedBuffer buffer(image.size(), guard);
        ThumbSizes sizes;
        call(buffer.data(), sizes);
        EXPECT_TRUE(sameBytes(buffer.bytes(), image));
        EXPECT_EQ(sizes, (ThumbSizes{static_cast<int>(image.size()), width, height}));
    }
}

void expectThumbOf(std::string record, const ThumbCase &thumbCase, const ThumbCall &call)
{
    record.resize(static_cast<std::size_t>(thumbCase.recordSize()));
    const auto lowestByteOfWord = [&](std::size_t fromEnd) {
        return static_cast<int>(static_cast<unsigned char>(record[record.size() - fromEnd]));
    };
    expectThumb(call, expectedBmp(thumbCase, record), lowestByteOfWord(12), lowestByteOfWord(8));
}

void expectNothing(const ThumbCall &call)
{
    GuardedBuffer nowhere(0, Guard::Behind);
    ThumbSizes sizes;
    call(nowhere.data(), sizes);
    EXPECT_EQ(sizes, ThumbSizes());
}

ThumbCall decoding(const ThumbCase &thumbCase, ifile &file, int index)
{
    return [&thumbCase, &file, index](char *buffer, ThumbSizes &sizes) {
        thumbCase.decode(file, index, buffer, sizes.size, sizes.width, sizes.height);
    };
}

} // namespace iosphoto::test
