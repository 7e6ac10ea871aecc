#include "platform/linux/statusitem/TrayItem.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/linux/statusitem/NotifierTypes.h"
#include "platform/linux/statusitem/StatusPictures.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

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
                               QStringLiteral("org.kde.StatusNotifierItem"), QString(), this,
                               SLOT(hear(QDBusMessage)));
        });
    }

    QString address() const { return m_server->address(); }

    QStringList heard; ///< names and texts of the signals

private Q_SLOTS:
    void hear(const QDBusMessage& signal)
    {
        QStringList words{signal.member()};
        for (const QVariant& argument : signal.arguments())
            words << argument.toString();
        heard << words.join(u' ');
    }

private:
    QDBusServer* m_server;
};

// A program that asked before the item was offered got an error, showed no icon, and missed an empty battery.
TEST(TrayItem, AnnouncesEverythingWhenItIsOffered)
{
    const QTemporaryDir folder;
    const HearingHost host(folder.filePath(QStringLiteral("socket")));
    QFile program(folder.filePath(QStringLiteral("tray")));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\necho '" + host.address().toLatin1() + "'\nexec sleep 60\n");
    program.close();
    ASSERT_TRUE(program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    Presentation presentation;
    presentation.needsAttention = true;
    presentation.label = latin("9%");
    presentation.labelGuide = latin("100%");
    StatusPictures pictures{QString()};
    TrayItem tray(program.fileName(), presentation, pictures, {}, {});
    tray.start();
    const QStringList everything{latin("NewTitle"),         latin("NewIcon"),
                                 latin("NewAttentionIcon"), latin("NewStatus NeedsAttention"),
                                 latin("NewToolTip"),       latin("XAyatanaNewLabel 9% 100%")};
    comesTrue([&] { return host.heard.size() >= everything.size(); });
    EXPECT_EQ(host.heard, everything);
}

} // namespace

#include "TrayItemTest.moc"
