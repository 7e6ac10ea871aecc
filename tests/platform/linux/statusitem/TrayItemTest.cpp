#include "platform/linux/statusitem/TrayItem.h"

#include <QDBusConnection>
#include <QDBusServer>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/linux/statusitem/NotifierTypes.h"
#include "platform/linux/statusitem/StatusPictures.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

/// A host that hears what the item announces from the moment of its connection on.
class HearingHost : public QObject
{
    Q_OBJECT

public:
    explicit HearingHost(const QString& socket)
        : m_server(new QDBusServer(QStringLiteral("unix:path=") + socket)) // not destroyed: unsafe in Qt 6.4
    {
        connect(m_server, &QDBusServer::newConnection, this, [this](QDBusConnection connection) {
            connection.connect(QString(), QLatin1String(itemObjectPath),
                               QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("NewIcon"), this,
                               SLOT(hearIcon()));
        });
    }

    QString address() const { return m_server->address(); }

    int icons = 0;

private Q_SLOTS:
    void hearIcon() { ++icons; }

private:
    QDBusServer* m_server;
};

// A program that asked before the item was offered got an error, and showed no icon.
TEST(TrayItem, AnnouncesItsIconWhenItIsOffered)
{
    const QTemporaryDir folder;
    const HearingHost host(folder.filePath(QStringLiteral("socket")));
    QFile program(folder.filePath(QStringLiteral("tray")));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\necho '" + host.address().toLatin1() + "'\nexec sleep 60\n");
    program.close();
    ASSERT_TRUE(program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    const Presentation presentation;
    StatusPictures pictures{QString()};
    TrayItem tray(program.fileName(), presentation, pictures, {}, {});
    tray.start();
    EXPECT_TRUE(comesTrue([&] { return host.icons > 0; }));
}

} // namespace

#include "TrayItemTest.moc"
