#pragma once

#include <functional>
#include <memory>

#include <QByteArray>
#include <QDBusConnection>
#include <QObject>
#include <QString>

class QDBusServer;

namespace quindle {

/// A place where the helper can connect over D-Bus without a bus: a socket in a folder that no other user can
/// enter; the library admits this user alone. Both are removed with the first connection.
class HelperListener final : public QObject
{
    Q_OBJECT

public:
    /// `connected` is called once from the main loop, with the first connection.
    explicit HelperListener(std::function<void(const QDBusConnection&)> connected);
    ~HelperListener() override;

    /// What the helper connects to; empty where no socket can be made.
    QString address() const;

private:
    bool listenBelow(const QByteArray& folder);
    void accept(const QDBusConnection& connection);
    void removeFiles();

    std::function<void(const QDBusConnection&)> m_connected;
    QByteArray m_folder;
    QDBusServer* m_server = nullptr;
};

} // namespace quindle
