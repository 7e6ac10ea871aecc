#include "platform/linux/os/DetachedProcess.h"

#include <csignal>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/support/ComesTrue.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

/// Starts a program that makes a file, and waits for that.
void expectStart()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("file"));
    EXPECT_TRUE(startDetached({"/bin/sh", "-c", ": > '" + file.toLocal8Bit() + '\''}));
    EXPECT_TRUE(comesTrue([&] { return QFile::exists(file); }));
}

void expectNoStart()
{
    EXPECT_FALSE(startDetached({"/bin/there-is-no-such-program"}));
    EXPECT_FALSE(startDetached({}));
}

TEST(DetachedProcessTest, SaysWhetherTheProgramRuns)
{
    expectStart();
    expectNoStart();
}

// As some programs that start others leave it.
TEST(DetachedProcessTest, SaysItWhereTheEndOfChildrenIsIgnoredToo)
{
    const auto before = std::signal(SIGCHLD, SIG_IGN);
    expectStart();
    expectNoStart();
    std::signal(SIGCHLD, before);
}

} // namespace
