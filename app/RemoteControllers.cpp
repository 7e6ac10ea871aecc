#include "app/RemoteControllers.h"

#include <utility>

#include "app/HelperAppDelegate.h"
#include "app/SharedNotifications.h"
#include "battery/QDBattery.h"
#include "facts/Facts.h"
#include "mac/QDMac.h"
#include "menubar/MainInterface.h"
#include "platform/Platform.h"
#include "platform/RunLoop.h"
#include "platform/StatusBar.h"
#include "remote/WindowsProcess.h"

namespace quindle {

namespace {

using Kind = WindowMessage::Kind;

/// A window of the other process.
class RemoteWindow : public WindowController, public PreferencesWindowController
{
public:
    explicit RemoteWindow(std::function<void()> request)
        : m_request(std::move(request))
    {
    }

    void showWindow() override { m_request(); }
    void showPreferencesWindow() override { m_request(); }

private:
    std::function<void()> m_request;
};

} // namespace

RemoteControllers::RemoteControllers(const Platform& platform, MainInterface& interface,
                                     WindowsProcess& process, SharedNotifications& notifications,
                                     RequestSurroundings surroundings)
    : m_platform(platform)
    , m_interface(interface)
    , m_process(process)
    , m_notifications(notifications)
    , m_surroundings(std::move(surroundings))
{
    m_notifications.setForward(
        [this](const QString& name) { m_process.send({.kind = Kind::Announced, .text = name.toUtf8()}); });
    // Nobody looks at windows that have gone.
    m_process.setGone([this] { watch(false); });
}

RemoteControllers::~RemoteControllers()
{
    m_interface.statusMenu().setViewOpener({});
    m_interface.statusMenu().setViewToggler({});
    m_process.setReceiver({});
    m_process.setGone({});
    m_notifications.setForward({});
}

DelegateControllers RemoteControllers::make(HelperAppDelegate& delegate)
{
    m_delegate = &delegate;
    const auto asks = [this](Kind kind) { return [this, kind] { request(kind); }; };
    m_interface.statusMenu().setViewOpener(asks(Kind::OpenView));
    m_interface.statusMenu().setViewToggler(asks(Kind::ToggleView));
    m_process.setReceiver([this](const WindowMessage& message) { handle(message); });
    connect(&delegate, &HelperAppDelegate::statusItemRefreshed, this, &RemoteControllers::followModels);
    // Messages are about the delegate, and the process may live a little longer.
    connect(&delegate, &QObject::destroyed, this, [this] { m_process.setReceiver({}); });
    return {.batteryPopover = nullptr,
            .preferencesWindow = std::make_unique<RemoteWindow>(asks(Kind::ShowMenuBarText)),
            .generalController = nullptr,
            .menuBarController = nullptr,
            .preferencesController = std::make_unique<RemoteWindow>(asks(Kind::ShowPreferences))};
}

void RemoteControllers::request(WindowMessage::Kind kind)
{
    m_process.request({.kind = kind,
                       .text = m_surroundings.activationToken(),
                       .pointer = m_surroundings.pointer(),
                       .number = m_surroundings.statesEntered(),
                       .data = m_surroundings.memory()});
}

void RemoteControllers::handle(const WindowMessage& message)
{
    switch (message.kind) {
    case Kind::Announced:
        m_notifications.postForWindows(QString::fromUtf8(message.text));
        break;
    case Kind::Watched:
        watch(message.number != 0);
        break;
    case Kind::RefreshTitle:
        m_delegate->updateStatusBarTitle();
        break;
    case Kind::ReloadBattery:
        m_delegate->reloadBattery();
        break;
    case Kind::Clicked:
        performClick(static_cast<FactClick>(message.number), m_delegate->myMac());
        break;
    case Kind::Quit:
        m_delegate->quitApp();
        break;
    case Kind::Stored:
        if (m_store)
            m_store(QString::fromUtf8(message.text), message.data);
        break;
    default: // what only the helper says
        break;
    }
}

// While somebody looks, title and windows are read on time and together, so that they never disagree.
void RemoteControllers::watch(bool isWatched)
{
    if (std::exchange(m_isWatched, isWatched) == isWatched)
        return;
    m_punctuality = isWatched ? m_platform.runLoop.keepPunctual() : nullptr;
    if (isWatched)
        m_delegate->refreshBatteryAndTitle();
}

// At each refresh, because another battery is another object.
void RemoteControllers::followModels()
{
    if (!m_isWatched)
        return;
    if (const QDBattery* battery = m_delegate->myMac().Battery())
        connect(battery, &QDBattery::changed, this, &RemoteControllers::sendRefreshedSoon,
                Qt::UniqueConnection);
    sendRefreshedSoon();
}

// Battery and status item are mostly refreshed one after the other.
void RemoteControllers::sendRefreshedSoon()
{
    if (!std::exchange(m_sendsRefreshed, true))
        QMetaObject::invokeMethod(this, &RemoteControllers::sendRefreshed, Qt::QueuedConnection);
}

void RemoteControllers::sendRefreshed()
{
    m_sendsRefreshed = false;
    if (!m_isWatched)
        return;
    // First, so that windows show it with what they refresh.
    if (const auto shown = m_delegate->statusItem().shownItem())
        m_process.send({.kind = Kind::PanelShows,
                        .text = shown->text.toUtf8(),
                        .number = static_cast<quint32>(shown->form),
                        .data = shown->picture});
    m_process.send({.kind = Kind::Refreshed, .number = m_surroundings.statesEntered()});
}

} // namespace quindle
