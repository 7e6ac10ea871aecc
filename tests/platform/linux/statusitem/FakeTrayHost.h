#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

namespace quindle {

/// A watcher and host of status notifier items: takes registrations, calls items, logs their signals.
class FakeTrayHost final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)

public:
    explicit FakeTrayHost(QDBusConnection bus);
    ~FakeTrayHost() override;

    /// Takes the watcher's name, or gives it up.
    bool appear();
    void disappear();

    /// Gets the watcher's name as soon as its owner gives it up.
    void queueUp();

    /// A watcher that forgets what is registered.
    void setForgetful(bool forgetful) { m_forgetful = forgetful; }

    QStringList items() const { return m_items; }
    int registrations() const { return m_registrations; }
    QString itemConnection() const { return m_itemConnection; }

    /// Calls the item and waits for the answer.
    QDBusMessage call(const char* path, const char* interface, const char* method,
                      const QVariantList& arguments = {});
    QVariant property(const char* path, const char* interface, const char* name);
    QVariant itemProperty(const char* name);

    /// Signals of the item and its menu since the last call, in order.
    QStringList takeSignals();
    QList<QDBusMessage> lastMessages() const { return m_messages; }

public Q_SLOTS:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& path);
    void hear(const QDBusMessage& message);

private:
    QDBusConnection m_bus;
    QStringList m_items;
    QStringList m_signals;
    QList<QDBusMessage> m_messages;
    QString m_itemConnection;
    int m_registrations = 0;
    bool m_forgetful = false;
};

} // namespace quindle
