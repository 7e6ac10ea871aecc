#include "windows/tray/HelperListener.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/support/ComesTrue.h"
#include "tests/support/QtPrinters.h"

namespace quindle {
namespace {

class HelperListenerTest : public testing::Test
{
protected:
    HelperListenerTest() { qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path())); }
    ~HelperListenerTest() override { QDBusConnection::disconnectFromPeer(name); }

    void listen()
    {
        listener = std::make_unique<HelperListener>([this](const QDBusConnection& peer) {
            ++connections;
            accepted = peer;
        });
    }

    QDBusConnection connect() { return QDBusConnection::connectToPeer(listener->address(), name); }

    QString socketFile() const
    {
        return listener->address().section(QStringLiteral("unix:path="), 1).section(u',', 0, 0);
    }

    QTemporaryDir runtime;
    QString name = QStringLiteral("peer");
    std::unique_ptr<HelperListener> listener;
    int connections = 0;
    QDBusConnection accepted{QString()};
};

TEST_F(HelperListenerTest, TheSocketStandsInAFolderOfTheUsersOwn)
{
    listen();
    const QFileInfo socket(socketFile());
    EXPECT_TRUE(socket.exists());
    EXPECT_EQ(QFileInfo(socket.path()).permissions(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                                          QFile::ReadUser | QFile::WriteUser |
                                                          QFile::ExeUser);
    EXPECT_EQ(QFileInfo(socket.path()).path(), runtime.path());
}

TEST_F(HelperListenerTest, NobodyCanConnectAfterTheFirstAndNoFilesAreLeft)
{
    listen();
    const QDBusConnection peer = connect();
    ASSERT_TRUE(peer.isConnected());
    ASSERT_TRUE(comesTrue([this] { return connections == 1; }));
    EXPECT_TRUE(accepted.isConnected());
    EXPECT_TRUE(QDir(runtime.path()).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot));
    const QString second = QStringLiteral("second");
    EXPECT_FALSE(QDBusConnection::connectToPeer(listener->address(), second).isConnected());
    QDBusConnection::disconnectFromPeer(second);
}

TEST_F(HelperListenerTest, WithoutAConnectionNoFilesAreLeftEither)
{
    listen();
    listener.reset();
    EXPECT_TRUE(QDir(runtime.path()).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot));
}

TEST_F(HelperListenerTest, AFolderThatIsTooLongForASocketIsReplaced)
{
    const QString folder = runtime.filePath(QString(100, u'x'));
    ASSERT_TRUE(QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder));
    listen();
    EXPECT_TRUE(socketFile().startsWith(QStringLiteral("/tmp/quindle-tray-")));
    EXPECT_TRUE(connect().isConnected());
    EXPECT_TRUE(QDir(folder).isEmpty());
    const QString made = QFileInfo(socketFile()).path();
    listener.reset();
    EXPECT_FALSE(QFileInfo::exists(made));
}

} // namespace
} // namespace quindle
