#include "remote/WindowsProcess.h"

#include <gtest/gtest.h>

#include "tests/support/FakeProgram.h"
#include "tests/support/LogLines.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

using Kind = WindowMessage::Kind;

struct WindowsProcessTest : testing::Test
{
    WindowsProcessTest()
    {
        process.setReceiver([this](const WindowMessage& message) { received.push_back(message.kind); });
        process.setGone([this] { ++gone; });
    }

    std::vector<Kind> sent(const ProgramRecord& program)
    {
        std::vector<Kind> kinds;
        for (const WindowMessage& message : program.messages)
            kinds.push_back(message.kind);
        return kinds;
    }

    LogLines log;
    FakeProgramStarter starter;
    std::chrono::milliseconds now = 0ms;
    std::vector<Kind> received;
    int gone = 0;
    WindowsProcess process{starter, [this] { return now; }};
};

using Kinds = std::vector<Kind>;

TEST_F(WindowsProcessTest, IsStartedByTheFirstRequestOnly)
{
    process.send({.kind = Kind::Refreshed});
    EXPECT_TRUE(starter.programs.empty());
    process.request({.kind = Kind::ShowPreferences, .text = "token"});
    process.request({.kind = Kind::OpenView});
    process.send({.kind = Kind::Refreshed});
    ASSERT_EQ(starter.programs.size(), 1U);
    EXPECT_EQ(sent(starter.last()), (Kinds{Kind::ShowPreferences, Kind::OpenView, Kind::Refreshed}));
    EXPECT_EQ(starter.last().messages.front().text, "token");
}

TEST_F(WindowsProcessTest, TogglingOpensUntilSomethingCanBeOpen)
{
    process.request({.kind = Kind::ToggleView});
    process.request({.kind = Kind::ToggleView});
    starter.last().say(Kind::Heard, 2);
    process.request({.kind = Kind::ToggleView});
    EXPECT_EQ(sent(starter.last()), (Kinds{Kind::OpenView, Kind::OpenView, Kind::ToggleView}));
}

TEST_F(WindowsProcessTest, ItsMessagesArePassedOn)
{
    process.request({.kind = Kind::OpenView});
    starter.last().say(Kind::Heard, 1);
    starter.last().say(Kind::Watched, 1);
    starter.last().say(Kind::RefreshTitle);
    EXPECT_EQ(received, (Kinds{Kind::Watched, Kind::RefreshTitle}));
}

TEST_F(WindowsProcessTest, AnIdleOneIsLetGo)
{
    process.request({.kind = Kind::OpenView});
    starter.last().say(Kind::Heard, 1);
    starter.last().say(Kind::Idle, 1);
    EXPECT_FALSE(starter.last().isLinked);
    EXPECT_FALSE(starter.last().isKilled);
    EXPECT_FALSE(process.isRunning());
    EXPECT_EQ(gone, 1);
    process.request({.kind = Kind::OpenView});
    EXPECT_EQ(starter.programs.size(), 2U);
    EXPECT_EQ(LogLines::lines(), QStringList());
}

TEST_F(WindowsProcessTest, ARequestOnTheWayKeepsAnIdleOne)
{
    process.request({.kind = Kind::OpenView});
    starter.last().say(Kind::Heard, 1);
    process.request({.kind = Kind::OpenView});
    starter.last().say(Kind::Idle, 1);
    EXPECT_TRUE(process.isRunning());
    starter.last().say(Kind::Heard, 2);
    starter.last().say(Kind::Idle, 2);
    EXPECT_FALSE(process.isRunning());
}

TEST_F(WindowsProcessTest, TheRequestAfterAnEndStartsAnother)
{
    process.request({.kind = Kind::OpenView});
    starter.last().say(Kind::Heard, 1);
    starter.last().end();
    EXPECT_FALSE(process.isRunning());
    EXPECT_EQ(gone, 1);
    process.request({.kind = Kind::ToggleView});
    ASSERT_EQ(starter.programs.size(), 2U);
    EXPECT_EQ(sent(starter.last()), Kinds{Kind::OpenView});
    EXPECT_EQ(LogLines::lines().size(), 1);
}

TEST_F(WindowsProcessTest, ARequestBeforeTheEndIsKnownStartsAnotherToo)
{
    process.request({.kind = Kind::OpenView});
    starter.last().say(Kind::Heard, 1);
    starter.last().takesMessages = false;
    process.request({.kind = Kind::ShowMenuBarText});
    ASSERT_EQ(starter.programs.size(), 2U);
    EXPECT_EQ(sent(starter.last()), Kinds{Kind::ShowMenuBarText});
}

TEST_F(WindowsProcessTest, OneThatCrashesAtEachStartIsLoggedOnce)
{
    for (int click = 0; click < 5; ++click) {
        process.request({.kind = Kind::OpenView});
        starter.last().end();
    }
    EXPECT_EQ(starter.programs.size(), 5U);
    EXPECT_EQ(LogLines::lines().size(), 1);
}

TEST_F(WindowsProcessTest, OneThatIsMissingIsLoggedOnceAndFoundLater)
{
    starter.isThere = false;
    process.request({.kind = Kind::OpenView});
    process.request({.kind = Kind::OpenView});
    EXPECT_EQ(LogLines::lines(), QStringList{QStringLiteral("the program of the windows cannot be started")});
    starter.isThere = true;
    process.request({.kind = Kind::OpenView});
    EXPECT_EQ(starter.programs.size(), 1U);
}

TEST_F(WindowsProcessTest, OneThatDoesNotAnswerIsEndedByALaterRequest)
{
    process.request({.kind = Kind::OpenView});
    now += WindowsProcess::patience - 1ms;
    process.request({.kind = Kind::OpenView});
    EXPECT_FALSE(starter.last().isKilled);
    now += 1ms;
    process.request({.kind = Kind::OpenView});
    ASSERT_EQ(starter.programs.size(), 2U);
    EXPECT_TRUE(starter.programs[0]->isKilled);
    EXPECT_FALSE(starter.programs[1]->isKilled);
    EXPECT_EQ(sent(starter.last()), Kinds{Kind::OpenView});
}

TEST_F(WindowsProcessTest, OneThatAnswersMayRest)
{
    process.request({.kind = Kind::OpenView});
    starter.last().say(Kind::Heard, 1);
    now += 1h;
    process.request({.kind = Kind::OpenView});
    process.request({.kind = Kind::OpenView});
    EXPECT_EQ(starter.programs.size(), 1U);
}

TEST_F(WindowsProcessTest, NonsenseIsLoggedOnceAndIgnored)
{
    process.request({.kind = Kind::OpenView});
    for (const char* nonsense : {"x", "nonsense that is long enough to be a message", "\xff"})
        starter.last().sayBytes(nonsense);
    EXPECT_EQ(received, Kinds());
    EXPECT_TRUE(process.isRunning());
    EXPECT_EQ(LogLines::lines().size(), 1);
}

TEST_F(WindowsProcessTest, TheEndAfterQuittingIsNoFailure)
{
    process.request({.kind = Kind::OpenView});
    starter.last().say(Kind::Quit);
    starter.last().end();
    EXPECT_EQ(LogLines::lines(), QStringList());
}

} // namespace
