#include <csignal>
#include <random>
#include <sys/wait.h>
#include <thread>

#include <QRegularExpression>

#include "platform/linux/LinuxUserDefaults.h"
#include "tests/platform/linux-desktop/TemporarySettings.h"

using namespace quindle;

namespace {

// Runs `work` in a process of its own.
pid_t fork(const std::function<void()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        work();
        ::_exit(0);
    }
    return child;
}

bool hasEnded(pid_t child)
{
    return ::waitpid(child, nullptr, WNOHANG) == child;
}

using LinuxUserDefaultsProcessTest = TemporarySettings;

TEST_F(LinuxUserDefaultsProcessTest, TwoWritersLoseNothingAndReadersSeeNoTornFile)
{
    constexpr int writes = 1000;
    std::vector<pid_t> writers;
    for (const char name : {'a', 'b'})
        writers.push_back(fork([&] {
            LinuxUserDefaults defaults(path());
            for (int number = 0; number < writes; ++number)
                defaults.setInteger(QLatin1Char(name) + QString::number(number), number);
        }));
    const LinuxUserDefaults reader(path());
    qsizetype seen = 0;
    while (!writers.empty()) {
        const qsizetype now = reader.dictionaryRepresentation().size();
        ASSERT_GE(now, seen);
        seen = now;
        std::erase_if(writers, hasEnded);
    }
    const QVariantMap all = reader.dictionaryRepresentation();
    EXPECT_EQ(all.size(), 2 * writes);
    for (int number = 0; number < writes; ++number) {
        EXPECT_EQ(all.value(u'a' + QString::number(number)), QVariant(qint64(number)));
        EXPECT_EQ(all.value(u'b' + QString::number(number)), QVariant(qint64(number)));
    }
    EXPECT_EQ(files(), QStringList{QStringLiteral("group.plist")});
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(LinuxUserDefaultsProcessTest, AKillLeavesTheOldOrTheNewState)
{
    const QString first(3000, u'1');
    const QString second(5000, u'2');
    LinuxUserDefaults defaults(path());
    defaults.setObject(QStringLiteral("key"), first);
    std::mt19937 random(20260228);
    std::uniform_int_distribution<int> microseconds(0, 6000);
    for (int round = 0; round < 200; ++round) {
        const pid_t writer = fork([&] {
            LinuxUserDefaults own(path());
            for (;;) {
                own.setObject(QStringLiteral("key"), second);
                own.setObject(QStringLiteral("key"), first);
            }
        });
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        ::kill(writer, SIGKILL);
        ::waitpid(writer, nullptr, 0);
        const auto root = propertyListFromFile(path());
        ASSERT_TRUE(root) << round;
        const QString text = root->toMap().value(QStringLiteral("key")).toString();
        ASSERT_TRUE(text == first || text == second) << round;
    }
    defaults.setObject(QStringLiteral("last"), true);
    EXPECT_EQ(files(), QStringList{QStringLiteral("group.plist")});
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(LinuxUserDefaultsProcessTest, AnotherProcessIsSeenAtTheNextRead)
{
    const LinuxUserDefaults reader(path());
    EXPECT_EQ(reader.integer(QStringLiteral("key")), 0);
    for (int value = 1; value < 20; ++value) {
        const pid_t writer =
            fork([&] { LinuxUserDefaults(path()).setInteger(QStringLiteral("key"), value); });
        ::waitpid(writer, nullptr, 0);
        EXPECT_EQ(reader.integer(QStringLiteral("key")), value);
    }
}

} // namespace
