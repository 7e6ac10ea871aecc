#include "platform/macos/MacNotifier.h"

#include <memory>

#include <QCoreApplication>
#include <gtest/gtest.h>

#include "tests/platform/macos/FakeSystem.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

Notification notice(const char* title)
{
    return {u(title), u("text"), u("battery-low"), Notification::Urgency::Critical};
}

class MacNotices : public testing::Test
{
protected:
    FakeNoticeCalls calls;
    std::unique_ptr<MacNotifier> notifier = std::make_unique<MacNotifier>(calls);
};

TEST_F(MacNotices, AreShownOnceTheUserAllowsThem)
{
    notifier->show(notice("low"));
    EXPECT_TRUE(calls.shown.empty());
    calls.permission(true, {});
    ASSERT_EQ(calls.shown.size(), 1U);
    EXPECT_EQ(calls.shown[0], notice("low"));
}

TEST_F(MacNotices, TheLastOneIsShownWhenTheUserTakesTime)
{
    notifier->show(notice("low"));
    notifier->show(notice("critical"));
    EXPECT_EQ(calls.leavesAsked, 1);
    calls.permission(true, {});
    ASSERT_EQ(calls.shown.size(), 1U);
    EXPECT_EQ(calls.shown[0].title, u("critical"));
    notifier->show(notice("again"));
    EXPECT_EQ(calls.leavesAsked, 2);
}

TEST_F(MacNotices, OneThatIsTakenBackBeforeTheUserAllowsItIsNotShown)
{
    notifier->show(notice("low"));
    notifier->withdraw();
    calls.permission(true, {});
    EXPECT_TRUE(calls.shown.empty());
    EXPECT_EQ(calls.withdrawals, 0);
}

TEST_F(MacNotices, AreTakenBackOnce)
{
    notifier->withdraw();
    EXPECT_EQ(calls.withdrawals, 0);
    notifier->show(notice("low"));
    calls.permission(true, {});
    calls.answered({});
    notifier->withdraw();
    notifier->withdraw();
    EXPECT_EQ(calls.withdrawals, 1);
}

TEST_F(MacNotices, OneThatIsTakenBackBeforeItIsThereIsTakenBackAgain)
{
    notifier->show(notice("low"));
    calls.permission(true, {});
    notifier->withdraw();
    calls.answered({});
    EXPECT_EQ(calls.withdrawals, 2);
}

TEST_F(MacNotices, AFailureIsLoggedOnceUntilItWorks)
{
    testing::internal::CaptureStderr();
    const auto refuse = [this](const char* fault) {
        notifier->show(notice("low"));
        calls.permission(false, u(fault));
    };
    refuse("");
    refuse("no center");
    notifier->show(notice("low"));
    calls.permission(true, {});
    calls.answered({});
    notifier->show(notice("low"));
    calls.permission(true, {});
    calls.answered(u("no room"));
    const QString log = QString::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_EQ(log.count(u("notifications are not shown")), 2) << log.toStdString();
    EXPECT_TRUE(log.contains(u("the user does not allow them")));
    EXPECT_FALSE(log.contains(u("no center")));
    EXPECT_TRUE(log.contains(u("no room")));
}

TEST_F(MacNotices, AnswersAfterItsEndAreNobodys)
{
    notifier->show(notice("low"));
    calls.permission(true, {});
    const auto answered = calls.answered;
    notifier->show(notice("critical"));
    notifier.reset();
    calls.permission(true, {});
    answered(u("too late"));
    EXPECT_EQ(calls.shown.size(), 1U);
}

TEST(MacPowerManagers, TheSystemWarns)
{
    MacPowerManagers managers;
    QString answer;
    managers.ask([&answer](const QString& desktop) { answer = desktop; });
    EXPECT_EQ(answer, QString()) << "it comes later";
    EXPECT_TRUE(comesTrue([&answer] { return answer == u("macOS"); }));
}

TEST(MacPowerManagers, DoNotAnswerAfterTheirEnd)
{
    bool isAnswered = false;
    std::make_unique<MacPowerManagers>()->ask([&isAnswered](const QString&) { isAnswered = true; });
    QCoreApplication::processEvents();
    EXPECT_FALSE(isAnswered);
}

} // namespace
