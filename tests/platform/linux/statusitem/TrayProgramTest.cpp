#include "platform/linux/statusitem/TrayProgram.h"

#include <string>
#include <sys/socket.h>
#include <sys/un.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/posix/FileDescriptor.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/QtPrinters.h"

namespace quindle {
namespace {

using namespace std::chrono_literals;

int warnings = 0;

void countWarning(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*line*/)
{
    warnings += type == QtWarningMsg ? 1 : 0;
}

class TrayProgramTest : public testing::Test
{
protected:
    TrayProgramTest()
    {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
        warnings = 0;
        qInstallMessageHandler(countWarning);
    }

    ~TrayProgramTest() override { qInstallMessageHandler(nullptr); }

    void make(const char* program)
    {
        tray = std::make_unique<TrayProgram>(
            QString::fromUtf8(program),
            [this](const QDBusConnection& peer) { isConnected = peer.isConnected(); }, [this] { return now; },
            patience);
        QObject::connect(tray.get(), &TrayProgram::wanted, tray.get(), [this] { ++wanted; });
    }

    /// Starts it, and lets that much time pass until it has ended.
    void runFor(std::chrono::milliseconds time)
    {
        ASSERT_TRUE(tray->isWanted());
        tray->start();
        ASSERT_FALSE(tray->isWanted());
        now += time;
        ASSERT_TRUE(comesTrue([this] { return wantedLater(); }));
    }

    /// Whether it is wanted, now or after a pause.
    bool wantedLater()
    {
        const auto present = now;
        now += 1h;
        const bool isWanted = tray->isWanted();
        now = present;
        return isWanted;
    }

    QTemporaryDir runtime;
    std::chrono::milliseconds now{1h};
    std::chrono::milliseconds patience{1h};
    std::unique_ptr<TrayProgram> tray;
    bool isConnected = false;
    int wanted = 0;
};

TEST_F(TrayProgramTest, OneThatEndsIsWantedAtOnceTheFirstTimeThenEverMoreSeldom)
{
    make("/bin/true");
    runFor(0ms);
    EXPECT_EQ(wanted, 1);
    runFor(0ms);
    EXPECT_EQ(wanted, 1);
    EXPECT_FALSE(tray->isWanted());
    now += 999ms;
    EXPECT_FALSE(tray->isWanted());
    tray->start();
    now += 1ms;
    runFor(0ms);
    now += 1s;
    EXPECT_FALSE(tray->isWanted());
    EXPECT_EQ(warnings, 1);
    now += 1s;
    runFor(0ms);
    EXPECT_EQ(warnings, 1);
}

TEST_F(TrayProgramTest, OneThatStayedIsStartedAgainAtOnce)
{
    make("/bin/true");
    for (int times = 0; times < 5; ++times) {
        runFor(1min);
        EXPECT_EQ(wanted, times + 1);
    }
    EXPECT_EQ(warnings, 0);
}

TEST_F(TrayProgramTest, OneThatIsMissingIsNamedOnce)
{
    make("/nowhere/quindle-windows");
    for (int times = 0; times < 5; ++times) {
        runFor(0ms);
        now += 10min;
    }
    EXPECT_EQ(warnings, 1);
    EXPECT_FALSE(isConnected);
}

/// A program in the test's folder, with mode 0755.
QString script(const QTemporaryDir& folder, const QByteArray& commands)
{
    QFile file(folder.filePath(QStringLiteral("program")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + commands);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file.fileName();
}

TEST_F(TrayProgramTest, OneThatSaysNothingIsGivenUpAndStartedLater)
{
    patience = 50ms;
    make(script(runtime, "exec sleep 1000\n").toUtf8().constData());
    for (int times = 0; times < 3; ++times) {
        runFor(50ms);
        EXPECT_FALSE(isConnected);
        now += 10min;
    }
    EXPECT_EQ(warnings, 1);
}

TEST_F(TrayProgramTest, OneThatListensButDoesNotAnswerIsGivenUp)
{
    // Its socket takes a connection, and nobody reads from it.
    const QByteArray path = runtime.filePath(QStringLiteral("socket")).toUtf8();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.toStdString().copy(address.sun_path, sizeof address.sun_path - 1);
    const FileDescriptor deaf(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    ASSERT_EQ(::bind(deaf.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(::listen(deaf.get(), 1), 0);
    patience = 50ms;
    make(script(runtime, "echo unix:path=" + path + "\nexec sleep 1000\n").toUtf8().constData());
    runFor(50ms);
    EXPECT_FALSE(isConnected);
    EXPECT_EQ(warnings, 1);
}

} // namespace
} // namespace quindle
