#include "platform/linux/link/LinuxTextReceiver.h"

#include <csignal>
#include <memory>

#include <fcntl.h>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/support/ComesTrue.h"

using namespace quindle;

namespace {

struct LinuxTextReceiverTest : testing::Test
{
    QString path(const QString& name) const { return folder.filePath(name); }

    /// A receiver that is a script with its argument in $1.
    void install(const QByteArray& script)
    {
        QFile file(path(QStringLiteral("program")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("#!/bin/bash\ncd \"${0%/*}\"\n" + script + '\n');
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        receiver = std::make_unique<LinuxTextReceiver>(
            QList<QByteArray>{QFile::encodeName(file.fileName()), "--word"});
    }

    QByteArray output() const
    {
        QFile file(path(QStringLiteral("out")));
        EXPECT_TRUE(comesTrue([&file] { return file.exists(); }));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir folder;
    std::unique_ptr<LinuxTextReceiver> receiver;
};

TEST_F(LinuxTextReceiverTest, TheProgramReadsTheTextAndItsEnd)
{
    install("{ echo \"$1\"; cat; } > new; mv new out");
    EXPECT_TRUE(receiver->isInstalled());
    EXPECT_TRUE(receiver->handOver("one\ntwo\n"));
    EXPECT_EQ(output(), "--word\none\ntwo\n");
}

TEST_F(LinuxTextReceiverTest, ATextMayBeEmpty)
{
    install("cat > new; mv new out");
    EXPECT_TRUE(receiver->handOver(QByteArray()));
    EXPECT_EQ(output(), "");
}

TEST_F(LinuxTextReceiverTest, ATextMayBeLongerThanAPipeAndNobodyWaitsForItsReader)
{
    install("until [ -e go ]; do sleep 0.02; done; cat > new; mv new out");
    const QByteArray text(1'000'000, 'x');
    EXPECT_TRUE(receiver->handOver(text));
    EXPECT_TRUE(QFile(path(QStringLiteral("go"))).open(QIODevice::WriteOnly));
    EXPECT_EQ(output(), text);
}

TEST_F(LinuxTextReceiverTest, OneThatReadsNothingHarmsNobody)
{
    install("exit 3");
    EXPECT_TRUE(receiver->handOver(QByteArray(1'000'000, 'x')));
    EXPECT_TRUE(comesTrue([this] { return !receiver->isRunning(); }));
}

TEST_F(LinuxTextReceiverTest, SaysWhetherTheLastOneRuns)
{
    install("until [ -e go ]; do sleep 0.02; done");
    EXPECT_FALSE(receiver->isRunning());
    EXPECT_TRUE(receiver->handOver("text"));
    EXPECT_TRUE(receiver->isRunning());
    EXPECT_TRUE(QFile(path(QStringLiteral("go"))).open(QIODevice::WriteOnly));
    EXPECT_TRUE(comesTrue([this] { return !receiver->isRunning(); }));
}

TEST_F(LinuxTextReceiverTest, TheProgramHasNothingElseOfThisProcess)
{
    int inheritable = 0; // what the test itself was given
    for (int number = 3; number < 1024; ++number)
        inheritable += ::fcntl(number, F_GETFD) == 0 ? 1 : 0;
    // The three usual ones, the script itself, and the folder that is read.
    constexpr int own = 5;
    install("files=(/proc/$$/fd/*); echo ${#files[@]} > new; mv new out");
    ASSERT_TRUE(receiver->handOver("text"));
    EXPECT_EQ(output(), QByteArray::number(inheritable + own) + '\n');
}

TEST_F(LinuxTextReceiverTest, TheProgramIsNobodysChild)
{
    install("echo $PPID > new; mv new out");
    ASSERT_TRUE(receiver->handOver("text"));
    EXPECT_NE(output().trimmed().toLongLong(), QCoreApplication::applicationPid());
}

TEST_F(LinuxTextReceiverTest, SignalsThatAreBlockedHereEndTheProgramAsEver)
{
    sigset_t signals;
    sigset_t before;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, &before);
    install("say() { echo $1 > new; mv new out; exit; }; trap 'say ended' TERM; kill -TERM $$; say blocked");
    ASSERT_TRUE(receiver->handOver("text"));
    EXPECT_EQ(output(), "ended\n");
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

TEST_F(LinuxTextReceiverTest, WhatIsNotThereIsNotStarted)
{
    for (const QByteArray& program : {QByteArray("/nowhere/program"), QByteArray()}) {
        LinuxTextReceiver nobody({program, "--word"});
        EXPECT_FALSE(nobody.isInstalled());
        EXPECT_FALSE(nobody.handOver("text"));
        EXPECT_FALSE(nobody.isRunning());
    }
}

} // namespace
