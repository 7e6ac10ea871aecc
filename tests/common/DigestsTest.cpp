#include <gtest/gtest.h>

#include "common/Digests.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(Md5Hex, Lowercase32Digits)
{
    EXPECT_EQ(md5Hex(QString()), QStringLiteral("d41d8cd98f00b204e9800998ecf8427e"));
    EXPECT_EQ(md5Hex(QStringLiteral("nil")), QStringLiteral("852438d026c018c4307b916406f98c62"));
    EXPECT_EQ(md5Hex(QStringLiteral("abc")), QStringLiteral("900150983cd24fb0d6963f7d28e17f72"));
}

TEST(Md5Hex, DigestsUtf8)
{
    EXPECT_EQ(md5Hex(QStringLiteral("é")), QStringLiteral("66ddcd97cfdeabb2f6fb8a999b4bc76f"));
}

TEST(Sha1Hex, Lowercase40Digits)
{
    EXPECT_EQ(sha1Hex(QString()), QStringLiteral("da39a3ee5e6b4b0d3255bfef95601890afd80709"));
    EXPECT_EQ(sha1Hex(QStringLiteral("abc")), QStringLiteral("a9993e364706816aba3e25717850c26c9cd0d89d"));
    EXPECT_EQ(sha1Hex(QStringLiteral("é")), QStringLiteral("bf15be717ac1b080b4f1c456692825891ff5073d"));
}

} // namespace
