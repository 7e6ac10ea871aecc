#pragma once

#include <functional>
#include <optional>

#include <QObject>
#include <QPoint>

#include "app/HelperAppDelegate.h"
#include "platform/RunLoop.h"
#include "remote/WindowMessage.h"

namespace quindle {

class MainInterface;
class SharedNotifications;
class WindowsProcess;
struct Platform;

/// What goes with a request for a window, asked for at each.
struct RequestSurroundings
{
    std::function<std::optional<QPoint>()> pointer; ///< where it is, in pixels of the X11 screen
    std::function<QByteArray()> activationToken;    ///< the one that came with the click
    std::function<quint32()> statesEntered;         ///< later states of a recorded computer
    std::function<QByteArray()> memory;             ///< what the services of the computer remember
};

/// The controllers of windows that another process has: showing one is a message. What happens there and
/// concerns the helper is carried out here. All that is passed in must outlive it, and it must outlive the
/// delegate.
class RemoteControllers : public QObject
{
public:
    RemoteControllers(const Platform& platform, MainInterface& interface, WindowsProcess& process,
                      SharedNotifications& notifications, RequestSurroundings surroundings);
    ~RemoteControllers() override;

    /// A ControllerFactory.
    DelegateControllers make(HelperAppDelegate& delegate);

    /// Sets what stores a setting of a recorded computer.
    using Store = std::function<void(const QString& database, const QByteArray& values)>;
    void setStore(Store store) { m_store = std::move(store); }

private:
    void request(WindowMessage::Kind kind);
    void handle(const WindowMessage& message);
    void watch(bool isWatched);
    void followModels();
    void sendRefreshedSoon();
    void sendRefreshed();

    const Platform& m_platform;
    MainInterface& m_interface;
    WindowsProcess& m_process;
    SharedNotifications& m_notifications;
    RequestSurroundings m_surroundings;
    Store m_store;
    HelperAppDelegate* m_delegate = nullptr;
    bool m_isWatched = false;
    bool m_sendsRefreshed = false; ///< at the end of this turn of the main loop
    Punctuality m_punctuality;
};

} // namespace quindle
