#pragma once

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/DetachedPrograms.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

namespace quindle {

/// What every back end's runner of commands must do, on a program that writes its arguments into a file, a
/// line each. A back end instantiates the suite with its class.
template <typename Runner>
class CommandRunnerContract : public testing::Test
{
protected:
    CommandRunnerContract()
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
    Runner runner;
};

TYPED_TEST_SUITE_P(CommandRunnerContract);

TYPED_TEST_P(CommandRunnerContract, RunsAProgramWithItsOwnArgumentsFirst)
{
    EXPECT_TRUE(
        this->runner.run(this->program() + latin(" --to \"my screen\""), {latin("low"), latin("20")}));
    EXPECT_EQ(this->written(), "--to\nmy screen\nlow\n20\n");
}

TYPED_TEST_P(CommandRunnerContract, KnowsNoShell)
{
    EXPECT_TRUE(this->runner.run(this->program() + latin(" $HOME ; false * `id`"), {}));
    EXPECT_EQ(this->written(), "$HOME\n;\nfalse\n*\n`id`\n");
}

TYPED_TEST_P(CommandRunnerContract, LooksForANameInThePath)
{
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", this->folder.path().toUtf8() + ":" + path);
    EXPECT_TRUE(this->runner.run(latin("tell"), {latin("full")}));
    qputenv("PATH", path);
    EXPECT_EQ(this->written(), "full\n");
}

TYPED_TEST_P(CommandRunnerContract, SaysThatItCannot)
{
    for (const char* command : {"", "  ", "/nowhere/tell", "quindle-no-such-program", "relative/tell"})
        EXPECT_FALSE(this->runner.run(latin(command), {latin("low")})) << command;
}

REGISTER_TYPED_TEST_SUITE_P(CommandRunnerContract, RunsAProgramWithItsOwnArgumentsFirst, KnowsNoShell,
                            LooksForANameInThePath, SaysThatItCannot);

} // namespace quindle
