#include "platform/linux/login/DesktopEntry.h"

#include <chrono>

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct Value
{
    const char* name;
    QByteArray bytes;
    std::optional<QByteArray> exec; ///< the value of "Exec"; nothing when there is no entry
};

const Value entries[] = {
    {"Plain", "[Desktop Entry]\nExec=a\n", "a"},
    {"NoEndOfLine", "[Desktop Entry]\nExec=a", "a"},
    {"CarriageReturns", "[Desktop Entry]\r\nExec=a b\r\n", "a b"},
    {"ByteOrderMark", "\xef\xbb\xbf[Desktop Entry]\nExec=a\n", "a"},
    {"Blanks", "  [Desktop Entry]  \n \t Exec \t =  a b  \n", "a b"},
    {"CommentsAndEmptyLines", "# [Desktop Entry]\n\n[Desktop Entry]\n#Exec=b\n\nExec=a\n#Exec=c\n", "a"},
    {"EqualsInTheValue", "[Desktop Entry]\nExec=a=b\n", "a=b"},
    {"Empty", "[Desktop Entry]\nExec=\n", ""},
    {"NoKeys", "[Desktop Entry]", ""},
    {"OtherGroupsBefore", "[Other]\nExec=b\n[Desktop Entry]\nExec=a\n", "a"},
    {"ActionsAfter", "[Desktop Entry]\nExec=a\n[Desktop Action x]\nExec=b\n", "a"},
    {"RepeatedKey", "[Desktop Entry]\nExec=b\nExec=a\n", "a"},
    {"RepeatedGroup", "[Desktop Entry]\nExec=b\n[X]\nExec=c\n[Desktop Entry]\nExec=a\n", "a"},
    {"Translations", "[Desktop Entry]\nExec[de]=b\nExec=a\nExec[de_AT]=c\n", "a"},
    {"LinesWithoutEquals", "[Desktop Entry]\ngarbage\n=b\nExec=a\nExec\n", "a"},
    {"KeysBeforeTheGroup", "Exec=b\n[Desktop Entry]\nExec=a\n", "a"},
    {"CaseOfKeys", "[Desktop Entry]\nexec=b\nEXEC=c\n", ""},
    {"NulInside", QByteArray("[Desktop Entry]\nA=\0\nExec=a\n", 27), "a"},
    {"NotUtf8", "[Desktop Entry]\nName=\xff\xfe\nExec=\xe4\n", "\xe4"},
    {"NoGroup", "Exec=a\n", std::nullopt},
    {"OtherGroup", "[KDE Desktop Entry]\nExec=a\n", std::nullopt},
    {"GroupThatDoesNotEnd", "[Desktop Entry\nExec=a\n", std::nullopt},
    {"Nothing", "", std::nullopt},
    {"OnlyAMark", "\xef\xbb\xbf", std::nullopt},
};

TEST(DesktopEntry, Values)
{
    for (const Value& value : entries) {
        const auto entry = desktopEntryFromBytes(value.bytes);
        EXPECT_EQ(entry.has_value(), value.exec.has_value()) << value.name;
        EXPECT_EQ(entry.value_or(DesktopEntry()).value("Exec"), value.exec.value_or(QByteArray()))
            << value.name;
    }
}

TEST(DesktopEntry, TranslationsAreKeysOfTheirOwn)
{
    const auto entry = desktopEntryFromBytes("[Desktop Entry]\nName=a\nName[de]=b\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->value("Name"), "a");
    EXPECT_EQ(entry->value("Name[de]"), "b");
}

TEST(DesktopEntry, Booleans)
{
    const auto entry =
        desktopEntryFromBytes("[Desktop Entry]\nA=true\nB=True\nC=1\nD=false\nE=0\nF=yes\nG=\n");
    ASSERT_TRUE(entry);
    for (const char* key : {"A", "B", "C"})
        EXPECT_TRUE(isTrue(*entry, key)) << key;
    for (const char* key : {"D", "E", "F", "G", "H"})
        EXPECT_FALSE(isTrue(*entry, key)) << key;
}

TEST(DesktopEntry, Escapes)
{
    EXPECT_EQ(unescapedValue(R"(a\sb\nc\td\re\\f)"), "a b\nc\td\re\\f");
    EXPECT_EQ(unescapedValue(R"(\x\")"), R"(\x\")");
    EXPECT_EQ(unescapedValue("\\"), "\\");
    EXPECT_EQ(unescapedValue(R"(\\s)"), "\\s");
}

struct Command
{
    QByteArray written;
    std::optional<QList<QByteArray>> arguments;
};

const Command commands[] = {
    {"a", {{"a"}}},
    {"a  b\tc ", {{"a", "b", "c"}}},
    {R"("/usr/lib/Quindle Helper/x" --y)", {{"/usr/lib/Quindle Helper/x", "--y"}}},
    {R"("a" "" b)", {{"a", "", "b"}}},
    {R"("a"b"c d")", {{"abc d"}}},
    {R"("a\\"b")", {{R"(a"b)"}}},                // the value's own escape first, then the quotes'
    {R"("\\$a \\`b \\\\c")", {{R"($a `b \c)"}}}, // likewise
    {R"("a\\b")", {{R"(a\b)"}}},                 // not one of the four
    {R"(a\\ b)", {{"a b"}}},
    {R"(a\sb)", {{"a", "b"}}},
    {"a 'b c'", {{"a", "'b", "c'"}}},
    {"a %f %F %u %U b %i %c %k", {{"a", "b"}}},
    {"a %d %D %n %N %v %m", {{"a"}}},
    {"a --x=%f 5%%", {{"a", "--x=", "5%"}}},
    {R"("/opt/5%%/a")", {{"/opt/5%/a"}}},
    {"", std::nullopt},
    {"   ", std::nullopt},
    {R"("" a)", std::nullopt},
    {"%f", std::nullopt},
    {R"("a)", std::nullopt},
    {R"(a "b)", std::nullopt},
    {"a %x", std::nullopt},
    {"a %", std::nullopt},
    {R"(a\\)", std::nullopt},
    {QByteArray("a\0b", 3), std::nullopt},
    {QByteArray("a\\\\\0b", 5), std::nullopt},
};

TEST(DesktopEntry, Commands)
{
    for (const Command& command : commands)
        EXPECT_EQ(execArguments(command.written), command.arguments) << command.written.toStdString();
}

TEST(DesktopEntry, WrittenCommandsAreReadAgain)
{
    for (const QByteArray& program :
         {QByteArray("/bin/a"), QByteArray("/opt/Quindle Helper/a"), QByteArray("/a\"b`c$d\\e"),
          QByteArray("/5%f%%"), QByteArray("/a\nb\tc\rd"), QByteArray("/\xc3\xa4\xff"),
          QByteArray("/a\\sb'c")}) {
        const QByteArray written = execValue(program);
        EXPECT_EQ(execArguments(written), QList<QByteArray>{program}) << written.toStdString();
        EXPECT_FALSE(written.contains('\n'));
    }
    EXPECT_EQ(execValue("/usr/lib/Quindle Helper/x"), "\"/usr/lib/Quindle Helper/x\"");
    EXPECT_EQ(execValue(R"(/a"b\c%)"), R"("/a\\"b\\\\c%%")");
}

TEST(DesktopEntry, MuchGarbageTakesLittleTime)
{
    QByteArray garbage(2'000'000, '=');
    for (qsizetype at = 0; at < garbage.size(); at += 3)
        garbage[at] = "\n[\"\\\0%x"[at % 7];
    const auto start = std::chrono::steady_clock::now();
    desktopEntryFromBytes("[Desktop Entry]\n" + garbage);
    desktopEntryFromBytes("[Desktop Entry]\nExec=" + QByteArray(2'000'000, 'x'));
    execArguments(QByteArray(2'000'000, 'x'));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

} // namespace
