#include "inspect/CommandLine.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

using Call = CommandLine::Call;

struct ArgumentRow
{
    const char* arguments; ///< separated by blanks
    const char* machineVariable;
    const char* sysfsVariable;
    Call call;
    const char* machineFile;
    const char* sysfsDirectory;
};

constexpr ArgumentRow argumentRows[] = {
    {"", "", "", Call::Report, "", ""},
    {"--json", "", "", Call::Json, "", ""},
    {"--demo", "", "", Call::Report, "", ""},
    {"--metrics --demo", "", "", Call::Metrics, "", ""},
    {"--metrics --machine m", "", "", Call::Metrics, "m", ""},
    {"--capture out", "", "", Call::Capture, "", ""},
    {"--capture=out --with-serials", "", "", Call::Capture, "", ""},
    {"--follow", "", "", Call::Follow, "", ""},
    {"--follow --demo --machine m", "", "", Call::Follow, "m", ""},
    {"--format=json --follow", "", "es", Call::Follow, "", "es"},
    {"--follow --help", "", "", Call::Help, "", ""},
    {"--help --json", "", "", Call::Help, "", ""},
    {"-h", "", "", Call::Help, "", ""},
    {"--version", "", "", Call::Version, "", ""},
    {"--machine m", "", "", Call::Report, "m", ""},
    {"--machine m --as-mac", "", "", Call::Report, "m", ""},
    {"--as-mac --follow", "em", "", Call::Follow, "em", ""},
    {"--machine=m --json", "", "", Call::Json, "m", ""},
    {"--machine a --machine b", "", "", Call::Report, "b", ""},
    {"--machine a --machine --json", "", "", Call::Json, "a", ""},
    {"--sysfs s", "", "", Call::Report, "", "s"},
    {"--machine m --sysfs s", "", "", Call::Report, "m", ""},
    {"", "em", "", Call::Report, "em", ""},
    {"", "", "es", Call::Report, "", "es"},
    {"", "em", "es", Call::Report, "em", ""},
    {"--machine m", "em", "es", Call::Report, "m", ""},
    {"--sysfs s", "em", "es", Call::Report, "", "s"},
};

CommandLine parse(const ArgumentRow& row)
{
    return parseCommandLine(
        QString::fromLatin1(row.arguments).split(u' ', Qt::SkipEmptyParts),
        {QString::fromLatin1(row.machineVariable), QString::fromLatin1(row.sysfsVariable)});
}

TEST(CommandLine, RightUsage)
{
    for (const ArgumentRow& row : argumentRows) {
        const CommandLine line = parse(row);
        EXPECT_EQ(line.fault, QString()) << row.arguments;
        EXPECT_EQ(line.call, row.call) << row.arguments;
        EXPECT_EQ(line.machineFile, QString::fromLatin1(row.machineFile)) << row.arguments;
        EXPECT_EQ(line.sysfsDirectory, QString::fromLatin1(row.sysfsDirectory)) << row.arguments;
    }
}

TEST(CommandLine, OptionsOfACapture)
{
    const CommandLine line = parse({"--demo --capture out --with-serials", "", "", Call::Capture, "", ""});
    EXPECT_EQ(line.captureFile, QStringLiteral("out"));
    EXPECT_TRUE(line.withSerials);
    EXPECT_TRUE(line.demo);
}

TEST(CommandLine, AMacsMachineFile)
{
    EXPECT_FALSE(parse({"--json --machine m", "", "", Call::Json, "", ""}).asMac);
    EXPECT_TRUE(parse({"--as-mac --json --machine m", "", "", Call::Json, "", ""}).asMac);
    EXPECT_TRUE(parse({"--json --as-mac", "m", "", Call::Json, "", ""}).asMac);
}

TEST(CommandLine, FormatOfFollowing)
{
    const struct
    {
        const char* arguments;
        BarFormat format;
    } formats[] = {
        {"--follow", BarFormat::Text},
        {"--follow --format text", BarFormat::Text},
        {"--follow --format json", BarFormat::Json},
        {"--follow --format=i3bar", BarFormat::I3bar},
        {"--format waybar --follow", BarFormat::Waybar},
    };
    for (const auto& [arguments, format] : formats) {
        const CommandLine line = parse({arguments, "", "", Call::Follow, "", ""});
        EXPECT_EQ(line.fault, QString()) << arguments;
        EXPECT_EQ(line.format, format) << arguments;
    }
}

TEST(CommandLine, WrongUsage)
{
    for (const char* arguments : {"--bogus",
                                  "file",
                                  "--machine",
                                  "--capture",
                                  "--sysfs",
                                  "--capture=",
                                  "--jsonx",
                                  "--json=1",
                                  "--with-serials",
                                  "--json --capture out",
                                  "--help extra",
                                  "--follow --json",
                                  "--follow --capture out",
                                  "--follow --with-serials",
                                  "--format json",
                                  "--follow --format",
                                  "--follow --format xml",
                                  "--follow --format JSON",
                                  "--follow=1",
                                  "--metrics --json",
                                  "--metrics --follow",
                                  "--metrics --capture out",
                                  "--metrics=1",
                                  "--as-mac",
                                  "--as-mac --json",
                                  "--as-mac --sysfs s",
                                  "--as-mac=1 --machine m"}) {
        const CommandLine line = parse({arguments, "", "", Call::Report, "", ""});
        EXPECT_FALSE(line.fault.isEmpty()) << arguments;
        EXPECT_FALSE(line.fault.contains(u'\n')) << arguments;
    }
}

} // namespace
