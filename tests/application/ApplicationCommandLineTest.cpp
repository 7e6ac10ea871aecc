#include "application/ApplicationCommandLine.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

using Call = ApplicationCommandLine::Call;

TEST(ApplicationCommandLineTest, WithoutArgumentsItShowsTheWindow)
{
    const ApplicationCommandLine commandLine = parseApplicationCommandLine({});
    EXPECT_EQ(commandLine.call, Call::Window);
    EXPECT_EQ(commandLine.fault, QString());
}

TEST(ApplicationCommandLineTest, CallsByName)
{
    const std::pair<const char*, Call> cases[] = {
        {"--help", Call::Help}, {"-h", Call::Help}, {"--version", Call::Version}, {"--record", Call::Record}};
    for (const auto& [argument, call] : cases) {
        const auto commandLine = parseApplicationCommandLine({QString::fromLatin1(argument)});
        EXPECT_EQ(commandLine.call, call) << argument;
        EXPECT_EQ(commandLine.fault, QString()) << argument;
    }
}

ApplicationCommandLine parsed(const char* arguments)
{
    return parseApplicationCommandLine(QString::fromLatin1(arguments).split(u' '));
}

TEST(ApplicationCommandLineTest, TheHistoryIsExportedInAFormat)
{
    for (const char* arguments : {"--export json", "--export=json"}) {
        EXPECT_EQ(parsed(arguments).fault, QString());
        EXPECT_EQ(parsed(arguments).call, Call::Export);
        EXPECT_EQ(parsed(arguments).format, ExportFormat::Json);
    }
    const auto all = parsed("--export csv --since 2026-03-31 --with-serials");
    EXPECT_EQ(all.fault, QString());
    EXPECT_EQ(all.format, ExportFormat::Csv);
    EXPECT_EQ(all.since, std::optional(QDate(2026, 3, 31)));
    EXPECT_TRUE(all.withSerials);
    EXPECT_FALSE(parsed("--export csv").withSerials);
    EXPECT_FALSE(parsed("--export csv").since);
}

TEST(ApplicationCommandLineTest, WhatDoesNotGoTogetherIsSaid)
{
    const std::pair<const char*, const char*> cases[] = {
        {"--record --export csv", "--record and --export exclude each other"},
        {"--export", "--export is csv or json"},
        {"--export xml", "--export is csv or json"},
        {"--export --since 2026-01-01", "unknown argument \"2026-01-01\""},
        {"--since 2026-01-01", "--since belongs to --export"},
        {"--with-serials", "--with-serials belongs to --export"},
        {"--record --with-serials", "--with-serials belongs to --export"},
        {"--samples", "--samples belongs to --export"},
        {"--export csv --samples --with-serials", "--samples have no serial numbers"},
        {"--export csv --since", "--since is a date, such as 2026-03-31"},
        {"--export csv --since 2026-02-30", "--since is a date, such as 2026-03-31"},
        {"--export csv --since yesterday", "--since is a date, such as 2026-03-31"},
    };
    for (const auto& [arguments, fault] : cases)
        EXPECT_EQ(parsed(arguments).fault, QString::fromLatin1(fault)) << arguments;
}

TEST(ApplicationCommandLineTest, SamplesAreExportedWhereTheyAreAskedFor)
{
    EXPECT_FALSE(parsed("--export csv").samples);
    EXPECT_TRUE(parsed("--export csv --samples").samples);
}

TEST(ApplicationCommandLineTest, HelpAndVersionWin)
{
    EXPECT_EQ(parsed("--record --help").call, Call::Help);
    EXPECT_EQ(parsed("--export csv --version").call, Call::Version);
}

TEST(ApplicationCommandLineTest, NothingElse)
{
    for (const char* argument : {"", "-v", "battery", "--json", "--help=1", "-platform"})
        EXPECT_EQ(parseApplicationCommandLine({QString::fromLatin1(argument)}).fault,
                  QStringLiteral("unknown argument \"%1\"").arg(QLatin1String(argument)));
}

TEST(ApplicationCommandLineTest, HelpNamesEveryOption)
{
    for (const char* option :
         {"--help", "-h", "--version", "--record", "--export", "--since", "--samples", "--with-serials"})
        EXPECT_TRUE(applicationHelpText().contains(QLatin1String(option))) << option;
}

} // namespace
