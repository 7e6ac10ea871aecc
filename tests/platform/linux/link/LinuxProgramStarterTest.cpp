#include "platform/linux/link/LinuxProgramStarter.h"

#include <fcntl.h>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/support/MessageBus.h"

using namespace quindle;

namespace {

struct LinuxProgramStarterTest : testing::Test
{
    /// Starts a script that finds its end of the link in $link.
    bool start(const QByteArray& script)
    {
        QFile file(folder.filePath(QStringLiteral("program")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("#!/bin/bash\nlink=${1#--link=}\n" + script + '\n');
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        program = LinuxProgramStarter(QFile::encodeName(file.fileName())).start();
        if (!program)
            return false;
        program->link().setReceiver([this](const QByteArray& message) { received.append(message); });
        program->link().setClosed([this] { isClosed = true; });
        return true;
    }

    QTemporaryDir folder;
    std::unique_ptr<LinkedProgram> program;
    QByteArrayList received;
    bool isClosed = false;
};

TEST_F(LinuxProgramStarterTest, TheProgramHasTheOtherEnd)
{
    ASSERT_TRUE(start("until said=$(dd bs=64 count=1 status=none <&$link); do :; done 2>/dev/null\n"
                      "printf %s \"heard $said\" >&$link"));
    EXPECT_TRUE(program->link().send("hello"));
    EXPECT_TRUE(comesTrue([this] { return isClosed; }));
    EXPECT_EQ(received, QByteArrayList{"heard hello"});
}

TEST_F(LinuxProgramStarterTest, ItHasNothingElseOfThisProcess)
{
    int inheritable = 0; // what the test itself was given
    for (int number = 3; number < 1024; ++number)
        inheritable += ::fcntl(number, F_GETFD) == 0 ? 1 : 0;
    // The three usual ones, the script itself, the folder that is read, and the link.
    constexpr int own = 6;
    ASSERT_TRUE(start("files=(/proc/$$/fd/*); printf %s ${#files[@]} >&$link"));
    EXPECT_TRUE(comesTrue([this] { return isClosed; }));
    EXPECT_EQ(received, QByteArrayList{QByteArray::number(inheritable + own)});
}

TEST_F(LinuxProgramStarterTest, ItIsNobodysChild)
{
    ASSERT_TRUE(start("printf %s $PPID >&$link"));
    EXPECT_TRUE(comesTrue([this] { return isClosed; }));
    EXPECT_NE(received.value(0).toLongLong(), QCoreApplication::applicationPid());
}

TEST_F(LinuxProgramStarterTest, OneThatHangsCanBeKilled)
{
    ASSERT_TRUE(start("trap '' TERM; while :; do sleep 0.05; done"));
    program->kill();
    EXPECT_TRUE(comesTrue([this] { return isClosed; }));
    program->kill();
}

TEST_F(LinuxProgramStarterTest, WhatIsNotThereIsNotStarted)
{
    EXPECT_EQ(LinuxProgramStarter("/nowhere/program").start(), nullptr);
    EXPECT_EQ(LinuxProgramStarter(QFile::encodeName(folder.path())).start(), nullptr);
}

} // namespace
