#include "windows/WindowsProgram.h"

#include "app/StoredUnits.h"
#include "mac/QDMac.h"
#include "platform/Bundle.h"
#include "platform/linux/session/ActivationToken.h"
#include "platform/linux/system/LinuxInstallationSource.h"
#include "remote/WindowMessage.h"
#include "settings/ApplicationPreferences.h"
#include "view/BatteryPopup.h"
#include "view/PointerPlace.h"
#include "windows/HelperEnd.h"
#include "windows/WindowsServices.h"

namespace quindle {

namespace {

using Kind = WindowMessage::Kind;

} // namespace

WindowsProgram::WindowsProgram(WindowsServices& services, HelperEnd& helper)
    : m_services(services)
    , m_helper(helper)
    , m_platform(services.platform())
    , m_controllers(
          m_platform, ApplicationPreferences::sharedInstance(&m_platform), m_interface,
          [this](HelperAppDelegate& owner) -> StatusBarTitle& { return m_title.emplace(m_helper, owner); },
          [this] { return installationSource(m_platform.bundle.path()); })
    , m_delegate(m_platform, ApplicationPreferences::sharedInstance(), m_interface, &QDMac::init,
                 [this](HelperAppDelegate& owner) { return m_controllers.make(owner); })
{
    // The helper repeats the click on its own models, so that both processes show the same.
    m_interface.setClickObserver(
        [this](FactClick click) { m_helper.send(Kind::Clicked, static_cast<quint32>(click)); });
    followStoredUnits(m_platform, m_delegate);
    m_delegate.applicationDidFinishLaunching(HelperAppDelegate::Program::Companion);
}

void WindowsProgram::handle(const WindowMessage& message)
{
    if (isRequest(message.kind))
        carryOut(message);
    else if (message.kind == Kind::Refreshed)
        refresh(message);
    else if (message.kind == Kind::PanelShows)
        m_title->setShownItem({.form = static_cast<ShownItem::Form>(message.number),
                               .text = QString::fromUtf8(message.text),
                               .picture = message.data});
    else if (message.kind == Kind::Announced)
        m_services.notifications().hear(QString::fromUtf8(message.text));
}

void WindowsProgram::carryOut(const WindowMessage& request)
{
    // The first one finds models that have just been made.
    if (m_requests > 0)
        refresh(request);
    {
        const ActivationToken token(request.text);
        show(request);
    }
    m_helper.send(Kind::Heard, ++m_requests);
}

void WindowsProgram::show(const WindowMessage& request)
{
    auto* popup = qobject_cast<BatteryPopup*>(m_delegate.batteryPopover());
    const auto pointer = request.pointer ? std::optional(pointerPlace(*request.pointer)) : std::nullopt;
    switch (request.kind) {
    case Kind::OpenView:
        popup->open(pointer);
        break;
    case Kind::ToggleView:
        popup->toggle(pointer);
        break;
    case Kind::ShowPreferences:
        m_delegate.openPreferences();
        break;
    default:
        m_delegate.openMenuBarText();
    }
}

void WindowsProgram::refresh(const WindowMessage& message)
{
    m_services.follow(message, m_delegate);
    m_delegate.refreshBatteryAndTitle();
}

void WindowsProgram::sendIdle()
{
    m_helper.send(Kind::Idle, m_requests);
}

} // namespace quindle
