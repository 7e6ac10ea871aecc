#include "platform/linux/link/LinuxCommandRunner.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/support/ComesTrue.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

/// A program that writes its arguments into a file, a line each.
struct LinuxCommandRunnerTest : testing::Test
{
    LinuxCommandRunnerTest()
    {
        QFile file(program());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\nprintf '%s\\n' \"$@\" >'" + output().toUtf8() + ".new'\n" + "mv '" +
                   output().toUtf8() + ".new' '" + output().toUtf8() + "'\n");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QString program() const { return folder.filePath(latin("tell")); }
    QString output() const { return folder.filePath(latin("output")); }

    QByteArray written() const
    {
        comesTrue([this] { return QFile::exists(output()); });
        QFile file(output());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nothing");
    }

    QTemporaryDir folder;
    LinuxCommandRunner runner;
};

TEST_F(LinuxCommandRunnerTest, RunsAProgramWithItsOwnArgumentsFirst)
{
    EXPECT_TRUE(runner.run(program() + latin(" --to \"my screen\""), {latin("low"), latin("20")}));
    EXPECT_EQ(written(), "--to\nmy screen\nlow\n20\n");
}

TEST_F(LinuxCommandRunnerTest, KnowsNoShell)
{
    EXPECT_TRUE(runner.run(program() + latin(" $HOME ; false * `id`"), {}));
    EXPECT_EQ(written(), "$HOME\n;\nfalse\n*\n`id`\n");
}

TEST_F(LinuxCommandRunnerTest, LooksForANameInThePath)
{
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8() + ":" + path);
    EXPECT_TRUE(runner.run(latin("tell"), {latin("full")}));
    qputenv("PATH", path);
    EXPECT_EQ(written(), "full\n");
}

TEST_F(LinuxCommandRunnerTest, SaysThatItCannot)
{
    for (const char* command : {"", "  ", "/nowhere/tell", "quindle-no-such-program", "relative/tell"})
        EXPECT_FALSE(runner.run(latin(command), {latin("low")})) << command;
}

} // namespace
