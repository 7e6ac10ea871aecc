#include "app/HelperCommandLine.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

using Call = HelperCommandLine::Call;

HelperCommandLine parse(const char* arguments)
{
    return parseHelperCommandLine(QString::fromLatin1(arguments).split(u' ', Qt::SkipEmptyParts));
}

TEST(HelperCommandLine, RightUsage)
{
    const struct
    {
        const char* arguments;
        Call call;
    } rows[] = {
        {"", Call::Run},
        {"--help", Call::Help},
        {"-h", Call::Help},
        {"--version", Call::Version},
        {"--version --help", Call::Version},
    };
    for (const auto& [arguments, call] : rows) {
        const HelperCommandLine line = parse(arguments);
        EXPECT_EQ(line.fault, QString()) << arguments;
        EXPECT_EQ(line.call, call) << arguments;
    }
}

TEST(HelperCommandLine, WrongUsage)
{
    for (const char* arguments :
         {"--bogus", "file", "-platform offscreen", "--help extra", "--help=1", "-session x"})
        EXPECT_TRUE(parse(arguments).fault.contains(QStringLiteral("unknown argument"))) << arguments;
}

} // namespace
