#include "ithmb/bmp_header.h"
#include "support/guarded_buffer.h"
#include "support/same_bytes.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;

TEST(BmpHeader, HasEachFieldAtItsPlace)
{
    constexpr std::string_view expected("BM"
                                        "\x04\x03\x02\x01" // file size
                                        "\0\0\0\0"
                                        "\x42\0\0\0"       // where the pixels start
                                        "\x28\0\0\0"       // size of the second header
                                        "\x14\x13\0\0"     // width
                                        "\x24\x23\0\0"     // height
                                        "\x01\0"           // planes
                                        "\x10\0"           // bits per pixel
                                        "\x03\0\0\0"       // bit fields
                                        "\x34\x33\x32\x31" // image size
                                        "\0\0\0\0"
                                        "\0\0\0\0"
                                        "\0\0\0\0"
                                        "\0\0\0\0"
                                        "\0\x7C\0\0"
                                        "\xE0\x03\0\0"
                                        "\x1F\0\0\0",
                                        66);
    GuardedBuffer buffer(66, Guard::Behind);
    iosphoto::writeBmpHeader({0x1314, 0x2324, 0x01020304, 0x31323334}, buffer.data());
    EXPECT_TRUE(sameBytes(buffer.bytes(), expected));
}
