#include "support/camera_roll_run.h"

#include <gtest/gtest.h>

#include <QtGlobal>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

struct Message
{
    QtMsgType type;
    std::string category;
    std::string text;
};

/// Takes the messages of the process while it lives.
class MessageCapture
{
public:
    MessageCapture()
    {
        taken().clear();
        previous_ = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context,
                                              const QString &text) {
            const char *const category = context.category;
            taken().push_back({type, category != nullptr ? category : "none", text.toStdString()});
        });
    }
    ~MessageCapture() { qInstallMessageHandler(previous_); }
    MessageCapture(const MessageCapture &) = delete;
    MessageCapture &operator=(const MessageCapture &) = delete;

    const std::vector<Message> &messages() const { return taken(); }

private:
    static std::vector<Message> &taken()
    {
        static std::vector<Message> messages;
        return messages;
    }

    QtMessageHandler previous_;
};

std::vector<std::string> linesAbout(const LibraryBuilder &library)
{
    const MessageCapture capture;
    const CameraRollRun run(library);
    std::vector<std::string> lines;
    for (const Message &message : capture.messages())
        lines.push_back(message.text);
    return lines;
}

using Lines = std::vector<std::string>;

constexpr const char *watched[] = {
    "550F4600-492B-4411-8A64-D3FC5131659B.JPG",
    "D27ACE93-8F27-4371-B80B-D3884911A16A.JPG",
    "5C96BF0D-EA1D-4091-83EC-68EDBEB606AB.PNG",
};

} // namespace

class WatchedAsset : public testing::TestWithParam<const char *>
{
};

TEST_P(WatchedAsset, LeavesOneDebugLineWithItsDates)
{
    LibraryBuilder library(ios15);
    library.asset(GetParam())
        .set("ZDATECREATED", 500000000)
        .set("ZMODIFICATIONDATE", 500003661)
        .set("ZADDEDDATE", 0);

    const MessageCapture capture;
    const CameraRollRun run(library);

    ASSERT_EQ(capture.messages().size(), 1U);
    const Message &message = capture.messages().front();
    EXPECT_EQ(message.type, QtDebugMsg);
    EXPECT_EQ(message.text,
              std::string(GetParam()) + " 20161105 00:53:20 20161105 01:54:21 20010101 00:00:00");
    EXPECT_EQ(run.shownIn(GetParam()), (Kinds{AlbumKind::CameraRoll}));
}

INSTANTIATE_TEST_SUITE_P(Names, WatchedAsset, testing::ValuesIn(watched));

TEST(AssetTrace, IsOfTheDefaultCategory)
{
    LibraryBuilder library(ios15);
    library.asset(watched[1]);

    const MessageCapture capture;
    const CameraRollRun run(library);

    ASSERT_EQ(capture.messages().size(), 1U);
    EXPECT_EQ(capture.messages().front().category, "default");
}

TEST(AssetTrace, CutsFractionsOfSecondsOff)
{
    LibraryBuilder library(ios15);
    library.asset(watched[0])
        .set("ZDATECREATED", 500000000.999)
        .set("ZMODIFICATIONDATE", -0.999)
        .set("ZADDEDDATE", -1.999);
    EXPECT_EQ(linesAbout(library),
              (Lines{std::string(watched[0]) +
                     " 20161105 00:53:20 20010101 00:00:00 20001231 23:59:59"}));
}

TEST(AssetTrace, HasNoDateOfAddingBelowIos8)
{
    LibraryBuilder library(ios7);
    library.cameraRollAsset(watched[0])
        .set("ZDATECREATED", 500000000)
        .set("ZMODIFICATIONDATE", 500000000);
    EXPECT_EQ(linesAbout(library),
              (Lines{std::string(watched[0]) +
                     " 20161105 00:53:20 20161105 00:53:20 20010101 00:00:00"}));
}

TEST(AssetTrace, AlsoTellsOfAssetsThatAreForgotten)
{
    LibraryBuilder library(ios15);
    library.asset(watched[2]).trashedAt(0);
    EXPECT_EQ(linesAbout(library).size(), 1U);
}

TEST(AssetTrace, IsSilentAboutOtherNames)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    library.asset("550f4600-492b-4411-8a64-d3fc5131659b.jpg");
    library.asset("D27ACE93-8F27-4371-B80B-D3884911A16A.jpg");
    library.asset("5C96BF0D-EA1D-4091-83EC-68EDBEB606AB.PNG ");
    library.asset("5C96BF0D-EA1D-4091-83EC-68EDBEB606AB");
    library.asset("");
    EXPECT_EQ(linesAbout(library), Lines{});
}
