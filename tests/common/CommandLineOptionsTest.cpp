#include "common/CommandLineOptions.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

struct Reading
{
    bool loud = false;
    std::optional<QString> file;
    QString fault;
};

Reading reading(const QStringList& arguments, OptionValues values)
{
    Reading reading;
    const CommandLineOption options[] = {
        {"--loud", &reading.loud}, {"-l", &reading.loud}, {"--file", &reading.file}};
    reading.fault = readCommandLine(arguments, options, values);
    return reading;
}

struct ArgumentRow
{
    const char* arguments; ///< separated by blanks
    bool loud;
    const char* file; ///< null when it was not given
    const char* fault;
};

void expectRows(std::span<const ArgumentRow> rows, OptionValues values)
{
    for (const auto& [arguments, loud, file, fault] : rows) {
        const Reading found = reading(latin(arguments).split(u' ', Qt::SkipEmptyParts), values);
        EXPECT_EQ(found.loud, loud) << arguments;
        EXPECT_EQ(found.file, file ? std::optional(latin(file)) : std::nullopt) << arguments;
        EXPECT_EQ(found.fault, latin(fault)) << arguments;
    }
}

TEST(CommandLineOptionsTest, WhatIsTheSameWithAllValues)
{
    constexpr ArgumentRow rows[] = {
        {"", false, nullptr, ""},
        {"-l", true, nullptr, ""},
        {"--loud --loud", true, nullptr, ""},
        {"--loud=1", false, nullptr, "unknown argument \"--loud=1\""},
        {"--files x", false, nullptr, "unknown argument \"--files\""},
        {"x --loud", false, nullptr, "unknown argument \"x\""},
        {"--loud x --file a", true, nullptr, "unknown argument \"x\""},
        {"--file a --loud", true, "a", ""},
        {"--file=a", false, "a", ""},
        {"--file=a=b", false, "a=b", ""},
        {"--file a=b", false, "a=b", ""},
        {"--file=--loud", false, "--loud", ""},
        {"--file a --file=b", false, "b", ""},
    };
    for (const OptionValues values : {OptionValues::Any, OptionValues::NotEmpty})
        expectRows(rows, values);
}

TEST(CommandLineOptionsTest, AnyValue)
{
    constexpr ArgumentRow rows[] = {
        {"--file", false, "", ""},
        {"--file=", false, "", ""},
        {"--file --loud", false, "--loud", ""},
        {"--file a --file", false, "", ""},
    };
    expectRows(rows, OptionValues::Any);
}

TEST(CommandLineOptionsTest, ValueThatIsNeeded)
{
    constexpr ArgumentRow rows[] = {
        {"--file", false, nullptr, "--file needs a value"},
        {"--file=", false, "", "--file needs a value"},
        {"--file --loud", false, nullptr, "--file needs a value"},
        {"--file a --file=", false, "", "--file needs a value"},
        {"--file a --file --loud", true, "a", ""},
    };
    expectRows(rows, OptionValues::NotEmpty);
}

TEST(CommandLineOptionsTest, AnEmptyArgumentIsAnArgument)
{
    EXPECT_EQ(reading({QString()}, OptionValues::Any).fault, latin("unknown argument \"\""));
    const QStringList emptyValue{latin("--file"), QString()};
    EXPECT_EQ(reading(emptyValue, OptionValues::NotEmpty).fault, latin("--file needs a value"));
}

} // namespace
