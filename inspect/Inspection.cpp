#include "inspect/Inspection.h"

#include <utility>

#include "inspect/Computer.h"
#include "inspect/JsonState.h"
#include "mac/QDMac.h"

namespace quindle {

namespace {

HelperAppDelegate::MacFactory macFactory(bool isDemo)
{
    if (isDemo)
        return [](const Platform& platform) { return QDMac::initWithDemoMode(platform, true); };
    return [](const Platform& platform) { return QDMac::init(platform); };
}

} // namespace

Inspection::Inspection(Computer& computer, bool isDemo)
    : m_computer(computer)
    , m_preferences(computer.platform())
    , m_delegate(computer.platform(), m_preferences, m_interface, macFactory(isDemo), noControllers)
{
    // Before the launch, whose refreshes count too.
    QObject::connect(&m_delegate, &HelperAppDelegate::statusItemRefreshed, &m_delegate,
                     [this] { ++m_refreshes; });
    QObject::connect(&m_delegate, &HelperAppDelegate::dailyUploadStarted, &m_delegate,
                     [this] { ++m_uploadsStarted; });
    m_delegate.applicationDidFinishLaunching();
}

void Inspection::playStep(std::size_t index)
{
    m_computer.playStep(index, m_delegate);
}

QVariantMap Inspection::takeState()
{
    RecentEvents recent = m_computer.takeEvents();
    recent.refreshes = std::exchange(m_refreshes, 0);
    recent.uploadsStarted = std::exchange(m_uploadsStarted, 0);
    const InspectedHelper helper{m_delegate, m_interface, m_preferences, m_computer.platform()};
    return stateOfHelper(helper, recent);
}

} // namespace quindle
