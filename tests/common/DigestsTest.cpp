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

} // namespace
