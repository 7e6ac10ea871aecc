#include <memory>
#include <sys/socket.h>
#include <sys/stat.h>
#include <vector>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/linux/SingleInstance.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

const QString name = QStringLiteral("_0");

class SingleInstanceTest : public testing::Test
{
protected:
    std::unique_ptr<QProcess> start(const QString& display = name) const
    {
        auto process = std::make_unique<QProcess>();
        process->start(QStringLiteral(QUINDLE_DESKTOP_PEER), {m_folder.path(), display});
        return process;
    }

    static QByteArray nextLine(QProcess& process)
    {
        QElapsedTimer watch;
        watch.start();
        while (!process.canReadLine() && watch.elapsed() < 10'000)
            if (!process.waitForReadyRead(1000) && process.state() == QProcess::NotRunning)
                break;
        return process.readLine().trimmed();
    }

    // Waits for the end when there is one soon.
    static bool ends(QProcess& process) { return process.waitForFinished(10'000) && process.exitCode() == 0; }

    static void kill(QProcess& process)
    {
        process.kill();
        process.waitForFinished();
    }

    QTemporaryDir m_folder;
};

TEST_F(SingleInstanceTest, TheSecondAsksTheFirstAndEnds)
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

TEST_F(SingleInstanceTest, OneOfFiveStartedAtOnceIsTheFirst)
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

TEST_F(SingleInstanceTest, WhatAKilledOneLeftIsTakenOver)
{
    for (int round = 0; round < 3; ++round) {
        const auto process = start();
        EXPECT_EQ(nextLine(*process), "first");
        kill(*process);
        EXPECT_TRUE(QFile::exists(m_folder.path() + QStringLiteral("/quindle-helper-_0.socket")));
    }
}

TEST_F(SingleInstanceTest, EachDisplayHasItsOwn)
{
    const auto one = start(QStringLiteral("_0"));
    const auto other = start(QStringLiteral("_1"));
    EXPECT_EQ(nextLine(*one), "first");
    EXPECT_EQ(nextLine(*other), "first");
    kill(*one);
    kill(*other);
}

TEST_F(SingleInstanceTest, ALostLockFileMakesNoSecondFirst)
{
    const auto first = start();
    EXPECT_EQ(nextLine(*first), "first");
    QFile::remove(m_folder.path() + QStringLiteral("/quindle-helper-_0.lock"));
    const auto second = start();
    EXPECT_TRUE(ends(*second));
    EXPECT_EQ(second->readAll(), "asked\n");
    kill(*first);
}

TEST_F(SingleInstanceTest, LeavesNoSocketBehind)
{
    {
        SingleInstance instance(m_folder.path(), name);
        EXPECT_TRUE(instance.acquire());
        SingleInstance other(m_folder.path(), name);
        EXPECT_FALSE(other.acquire());
    }
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::System),
              QStringList{QStringLiteral("quindle-helper-_0.lock")});
    SingleInstance next(m_folder.path(), name);
    EXPECT_TRUE(next.acquire());
}

TEST_F(SingleInstanceTest, WithoutAFolderEveryOneIsTheFirst)
{
    SingleInstance one(QString(), name);
    SingleInstance other(QString(), name);
    EXPECT_TRUE(one.acquire());
    EXPECT_TRUE(other.acquire());
}

TEST_F(SingleInstanceTest, ALongFolderPathStillLocks)
{
    const QString folder = m_folder.path() + u'/' + QString(120, u'x');
    ASSERT_TRUE(QDir().mkpath(folder));
    SingleInstance one(folder, name);
    SingleInstance other(folder, name);
    EXPECT_TRUE(one.acquire());
    EXPECT_FALSE(other.acquire());
}

TEST_F(SingleInstanceTest, NamesComeFromTheDisplay)
{
    struct Row
    {
        const char* wayland;
        const char* x11;
        const char* expected;
    };
    const Row rows[] = {
        {"wayland-0", ":0", "wayland-0"},
        {"", ":0", "_0"},
        {"", "localhost:10.0", "localhost_10_0"},
        {"/run/user/1000/wayland-1", "", "_run_user_1000_wayland-1"},
        {"", "", "none"},
    };
    for (const Row& row : rows) {
        qputenv("WAYLAND_DISPLAY", row.wayland);
        qputenv("DISPLAY", row.x11);
        EXPECT_EQ(instanceName(), QString::fromLatin1(row.expected));
    }
    qputenv("WAYLAND_DISPLAY", QByteArray("/") + QByteArray(60, 'a'));
    const QString longName = instanceName();
    EXPECT_EQ(longName.size(), 32);
    qputenv("WAYLAND_DISPLAY", QByteArray("/") + QByteArray(61, 'a'));
    EXPECT_NE(instanceName(), longName);
}

TEST_F(SingleInstanceTest, FolderIsTheRuntimeFolderOrOneOfTheUsersOwn)
{
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_folder.path()));
    EXPECT_EQ(instanceFolder(), m_folder.path());
    const QString own = QStringLiteral("/tmp/quindle-%1").arg(::geteuid());
    for (const char* folder : {"", "relative", "/nowhere"}) {
        qputenv("XDG_RUNTIME_DIR", folder);
        EXPECT_EQ(instanceFolder(), own);
    }
    struct stat found = {};
    ASSERT_EQ(::stat(QFile::encodeName(own).constData(), &found), 0);
    EXPECT_EQ(found.st_mode & 0777, 0700u);
}

} // namespace
