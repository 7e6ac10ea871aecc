#include <memory>
#include <sys/socket.h>
#include <vector>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/linux/session/InstanceFiles.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

using Outcome = StartAnswer::Outcome;

const QString instanceName = QStringLiteral("_0");

class InstanceFilesTest : public testing::Test
{
protected:
    QString stem(const QString& display = instanceName) const
    {
        return m_folder.path() + QStringLiteral("/quindle-helper-") + display;
    }

    std::unique_ptr<QProcess> start(const QString& display = instanceName) const
    {
        auto process = std::make_unique<QProcess>();
        process->start(QStringLiteral(QUINDLE_INSTANCE_PEER), {stem(display)});
        return process;
    }

    static QByteArray nextLine(QProcess& process)
    {
        QElapsedTimer watch;
        watch.start();
        while (!process.canReadLine() && watch.elapsed() < 30'000)
            if (!process.waitForReadyRead(1000) && process.state() == QProcess::NotRunning)
                break;
        return process.readLine().trimmed();
    }

    // Whether it ends well, and soon.
    static bool ends(QProcess& process) { return process.waitForFinished(30'000) && process.exitCode() == 0; }

    static void kill(QProcess& process)
    {
        process.kill();
        process.waitForFinished();
    }

    QTemporaryDir m_folder;
};

TEST_F(InstanceFilesTest, TheSecondAsksTheFirstAndEnds)
{
    const auto first = start();
    EXPECT_EQ(nextLine(*first), "first");
    for (int round = 0; round < 3; ++round) {
        const auto second = start();
        EXPECT_TRUE(ends(*second));
        EXPECT_EQ(second->readAll(), "asked\n");
        EXPECT_EQ(nextLine(*first), "show");
    }
    EXPECT_EQ(first->state(), QProcess::Running);
    kill(*first);
}

TEST_F(InstanceFilesTest, OneOfFiveStartedAtOnceIsTheFirst)
{
    std::vector<std::unique_ptr<QProcess>> all;
    for (int number = 0; number < 5; ++number)
        all.push_back(start());
    int firsts = 0;
    QProcess* first = nullptr;
    for (const auto& process : all) {
        const QByteArray line = nextLine(*process);
        if (line == "first") {
            ++firsts;
            first = process.get();
        } else {
            EXPECT_EQ(line, "asked");
            EXPECT_TRUE(ends(*process));
        }
    }
    ASSERT_EQ(firsts, 1);
    for (int number = 0; number < 4; ++number)
        EXPECT_EQ(nextLine(*first), "show");
    kill(*first);
}

TEST_F(InstanceFilesTest, WhatAKilledOneLeftIsTakenOver)
{
    for (int round = 0; round < 3; ++round) {
        const auto process = start();
        EXPECT_EQ(nextLine(*process), "first");
        kill(*process);
        EXPECT_TRUE(QFile::exists(m_folder.path() + QStringLiteral("/quindle-helper-_0.socket")));
    }
}

TEST_F(InstanceFilesTest, EachDisplayHasItsOwn)
{
    const auto one = start(QStringLiteral("_0"));
    const auto other = start(QStringLiteral("_1"));
    EXPECT_EQ(nextLine(*one), "first");
    EXPECT_EQ(nextLine(*other), "first");
    kill(*one);
    kill(*other);
}

TEST_F(InstanceFilesTest, ALostLockFileMakesNoSecondFirst)
{
    const auto first = start();
    EXPECT_EQ(nextLine(*first), "first");
    QFile::remove(m_folder.path() + QStringLiteral("/quindle-helper-_0.lock"));
    const auto second = start();
    EXPECT_TRUE(ends(*second));
    EXPECT_EQ(second->readAll(), "asked\n");
    kill(*first);
}

TEST_F(InstanceFilesTest, LeavesNoSocketBehind)
{
    {
        InstanceFiles instance({stem()});
        EXPECT_EQ(instance.start().outcome, Outcome::First);
        InstanceFiles other({stem()});
        EXPECT_EQ(other.start().outcome, Outcome::AnotherWoken);
    }
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::System),
              QStringList{QStringLiteral("quindle-helper-_0.lock")});
    InstanceFiles next({stem()});
    EXPECT_EQ(next.start().outcome, Outcome::First);
}

TEST_F(InstanceFilesTest, WithoutAFolderNoneStarts)
{
    InstanceFiles none({});
    EXPECT_EQ(none.start().outcome, Outcome::GivenUp);
    InstanceFiles impossible({QStringLiteral("/proc/quindle-helper-_0")});
    const StartAnswer answer = impossible.start();
    EXPECT_EQ(answer.outcome, Outcome::GivenUp);
    EXPECT_TRUE(answer.fault.contains(QStringLiteral("/proc/quindle-helper-_0.lock")));
}

TEST_F(InstanceFilesTest, TheNextPlaceStandsInForOneInWhichNothingCanBeMade)
{
    const std::vector<QString> stems{QStringLiteral("/proc/quindle-helper-_0"), stem()};
    InstanceFiles one(stems);
    InstanceFiles other(stems);
    EXPECT_EQ(one.start().outcome, Outcome::First);
    EXPECT_EQ(other.start().outcome, Outcome::AnotherWoken);
}

TEST_F(InstanceFilesTest, ALongPathIsLikeAnyOther)
{
    const QString longStem = m_folder.path() + u'/' + QString(120, u'x') + QStringLiteral("/quindle-helper");
    InstanceFiles one({longStem});
    InstanceFiles other({longStem});
    EXPECT_EQ(one.start().outcome, Outcome::First);
    EXPECT_EQ(other.start().outcome, Outcome::AnotherWoken);
}

TEST_F(InstanceFilesTest, ALockWhoseHolderDoesNotListenIsGivenUp)
{
    const auto held = FileLock::take(QFile::encodeName(stem() + QStringLiteral(".lock")), {});
    InstanceFiles instance({stem()});
    const StartAnswer answer = instance.start();
    EXPECT_EQ(answer.outcome, Outcome::GivenUp);
    EXPECT_TRUE(answer.fault.startsWith(stem()));
}

TEST_F(InstanceFilesTest, HoldingWhatIsFreeNeitherAsksNorWaits)
{
    InstanceFiles first({stem()});
    EXPECT_EQ(first.start().outcome, Outcome::First);
    bool asked = false;
    first.setShowRequested([&] { asked = true; });
    InstanceFiles({stem()}).holdIfFree();
    QCoreApplication::processEvents();
    EXPECT_FALSE(asked);
    const QString free = stem(QStringLiteral("free"));
    InstanceFiles held({free});
    held.holdIfFree();
    InstanceFiles second({free});
    EXPECT_EQ(second.start().outcome, Outcome::AnotherWoken);
}

TEST_F(InstanceFilesTest, PlacesAreTheUsersOwn)
{
    const QByteArray folder = QFile::encodeName(m_folder.path());
    qputenv("XDG_CONFIG_HOME", "/configuration");
    qputenv("XDG_RUNTIME_DIR", folder);
    const QString inSettings = QStringLiteral("/configuration/quindle/quindle-helper-") +
                               QSysInfo::machineHostName() + QStringLiteral("-_0");
    const QString program = QStringLiteral("quindle-helper");
    EXPECT_EQ(instanceFileStems(program, instanceName),
              (std::vector{m_folder.path() + QStringLiteral("/quindle-helper-_0"), inSettings}));
    for (const char* runtime : {"", "relative", "/nowhere"}) {
        qputenv("XDG_RUNTIME_DIR", runtime);
        EXPECT_EQ(instanceFileStems(program, instanceName), std::vector{inSettings}) << runtime;
    }
}

} // namespace
