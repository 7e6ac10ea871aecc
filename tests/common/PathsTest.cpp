#include "common/Paths.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(Paths, TextInUtf8IsThatText)
{
    for (const char* path : {"", "/", "/opt/Quindle Helper", "/home/zoë/電池", "/\xf0\x9f\x94\x8b"}) {
        EXPECT_EQ(pathText(path), QString::fromUtf8(path));
        EXPECT_EQ(pathBytes(QString::fromUtf8(path)), path);
    }
}

TEST(Paths, OtherBytesComeBack)
{
    for (const char* path :
         {"/\xff", "\xff\xfe\xfd", "/a\xffz/b", "/\xc3", "/\xc3\xc3\xa9", "/\xe9\x9b\xbb\x9b/x",
          "\x80\xf0\x9f\x94\x8b\x80", "/\xed\xa0\x80", "/\xed\xb2\x80", "/\xf4\x90\x80\x80", "/\xc0\xaf"}) {
        EXPECT_FALSE(pathText(path).isValidUtf16()) << path;
        EXPECT_EQ(pathBytes(pathText(path)), path);
    }
}

TEST(Paths, EveryPairOfBytesComesBack)
{
    for (int first = 1; first < 256; ++first) {
        for (int second = 1; second < 256; ++second) {
            const QByteArray path{static_cast<char>(first), static_cast<char>(second)};
            ASSERT_EQ(pathBytes(pathText(path)), path) << first << ' ' << second;
        }
    }
}

TEST(Paths, TextThatNoPathGaveHoldsNoSlashInDisguise)
{
    for (const char16_t unit : {u'\xdc2f', u'\xdc00', u'\xdc7f', u'\xdd00', u'\xd800'})
        EXPECT_FALSE(pathBytes(QString(QChar(unit))).contains('/'));
    EXPECT_FALSE(pathBytes(QString(QChar(u'\xdc00'))).contains('\0'));
}

TEST(Paths, ArgumentsComeWithoutTheProgramsName)
{
    const char* const arguments[] = {"program", "--machine", "/\xff"};
    EXPECT_EQ(argumentTexts(3, arguments), (QStringList{QStringLiteral("--machine"), pathText("/\xff")}));
    EXPECT_EQ(argumentTexts(0, arguments), QStringList());
}

TEST(Paths, TheHomeFolderIsTheVariableElseTheAccounts)
{
    qputenv("HOME", "/home/j\xff");
    EXPECT_EQ(pathBytes(homeFolder()), "/home/j\xff");
    EXPECT_EQ(pathBytes(pathWithTildeExpanded(QStringLiteral("~/x"))), "/home/j\xff/x");
    EXPECT_EQ(pathWithTildeExpanded(QStringLiteral("~jane/x")), QStringLiteral("~jane/x"));
    qputenv("HOME", "relative");
    EXPECT_EQ(homeFolder(), QString());
    EXPECT_EQ(pathWithTildeExpanded(QStringLiteral("~/x")), QStringLiteral("~/x"));
    qputenv("HOME", "");
    EXPECT_TRUE(homeFolder().startsWith(u'/'));
}

} // namespace
