#include <csignal>
#include <random>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>

#include "platform/linux/settings/LinuxUserDefaults.h"
#include "tests/platform/linux/settings/TemporarySettings.h"

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
    int status = 0;
    if (::waitpid(child, &status, WNOHANG) != child)
        return false;
    EXPECT_EQ(status, 0) << "a write was lost";
    return true;
}

using LinuxUserDefaultsProcessTest = TemporarySettings;

// scripts/faults-long asks for more: each write waits for the disk, which may take a busy machine 20 ms.
int countFrom(const char* variable, int otherwise)
{
    const int asked = qEnvironmentVariableIntValue(variable);
    return asked > 0 ? asked : otherwise;
}

// Few enough that the file stays small; each write finds out whether the one before it was lost.
QString keyOf(char writer, int number)
{
    return QLatin1Char(writer) + QString::number(number % 50);
}

void writeAll(const QString& path, char writer, int writes)
{
    LinuxUserDefaults defaults(path);
    for (int number = 0; number < writes; ++number) {
        if (number > 0 && defaults.integer(keyOf(writer, number - 1)) != number - 1)
            ::_exit(1);
        defaults.setInteger(keyOf(writer, number), number);
    }
}

TEST_F(LinuxUserDefaultsProcessTest, TwoWritersLoseNothingAndReadersSeeNoTornFile)
{
    const int writes = countFrom("QUINDLE_WRITES", 150);
    std::vector<pid_t> writers;
    for (const char writer : {'a', 'b'})
        writers.push_back(fork([&] { writeAll(path(), writer, writes); }));
    const LinuxUserDefaults reader(path());
    qsizetype seen = 0;
    qint64 last = 0;
    while (!writers.empty()) {
        const QVariantMap now = reader.dictionaryRepresentation();
        ASSERT_GE(now.size(), seen);
        ASSERT_GE(now.value(keyOf('a', 0)).toLongLong(), last);
        seen = now.size();
        last = now.value(keyOf('a', 0)).toLongLong();
        std::erase_if(writers, hasEnded);
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    for (const char writer : {'a', 'b'})
        for (int number = writes - 50; number < writes; ++number)
            EXPECT_EQ(reader.object(keyOf(writer, number)), QVariant(qint64(number)));
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
    const int rounds = countFrom("QUINDLE_KILLS", 500);
    for (int round = 0; round < rounds; ++round) {
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

// Root may write anywhere, so it is an account without rights that tries.
TEST_F(LinuxUserDefaultsProcessTest, AReadOnlyFolderIsReadAndStaysAsItIs)
{
    LinuxUserDefaults(path()).setInteger(QStringLiteral("key"), 1);
    const QByteArray before = bytesOf(path());
    ASSERT_EQ(::chmod(QFile::encodeName(m_root.path()).constData(), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0644), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(folder()).constData(), 0555), 0);
    const pid_t reader = fork([&] {
        if (::geteuid() == 0 && ::setresuid(65534, 65534, 65534) != 0)
            ::_exit(2);
        LinuxUserDefaults own(path());
        own.setInteger(QStringLiteral("key"), 2);
        own.setInteger(QStringLiteral("key"), 3);
        const bool isKept = own.integer(QStringLiteral("key")) == 1 && messages().size() == 1;
        ::_exit(isKept ? 0 : 1);
    });
    int status = 0;
    ::waitpid(reader, &status, 0);
    EXPECT_EQ(status, 0);
    ::chmod(QFile::encodeName(folder()).constData(), 0755);
    EXPECT_EQ(bytesOf(path()), before);
    EXPECT_EQ(files(), QStringList{QStringLiteral("group.plist")});
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
