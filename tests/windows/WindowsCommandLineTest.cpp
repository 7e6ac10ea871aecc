#include "windows/WindowsCommandLine.h"

#include <gtest/gtest.h>

using namespace quindle;
using namespace std::chrono_literals;

namespace {

TEST(WindowsCommandLine, TheLinkIsWhatItNeeds)
{
    const auto usual = parseWindowsCommandLine({QStringLiteral("--link=7")});
    ASSERT_TRUE(usual);
    EXPECT_EQ(usual->link, 7);
    EXPECT_EQ(usual->patience, 60s);
    const auto hasty =
        parseWindowsCommandLine({QStringLiteral("--patience=250"), QStringLiteral("--link=3")});
    ASSERT_TRUE(hasty);
    EXPECT_EQ(hasty->patience, 250ms);
}

TEST(WindowsCommandLine, TheTrayNeedsNoLink)
{
    const auto tray = parseWindowsCommandLine({QStringLiteral("--tray")});
    ASSERT_TRUE(tray);
    EXPECT_TRUE(tray->holdsTray);
    EXPECT_FALSE(parseWindowsCommandLine({QStringLiteral("--link=7")})->holdsTray);
}

TEST(WindowsCommandLine, AnythingElseIsWrong)
{
    const QStringList wrong[]{{},
                              {QStringLiteral("--patience=1")},
                              {QStringLiteral("--link=")},
                              {QStringLiteral("--link=x")},
                              {QStringLiteral("--link=-1")},
                              {QStringLiteral("--link=3"), QStringLiteral("--other")},
                              {QStringLiteral("--link=3"), QStringLiteral("--tray")},
                              {QStringLiteral("--help")}};
    for (const QStringList& arguments : wrong)
        EXPECT_FALSE(parseWindowsCommandLine(arguments)) << arguments.join(u' ').toStdString();
}

} // namespace
