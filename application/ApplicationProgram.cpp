#include "application/ApplicationProgram.h"

#include "application/pages/BatteryPage.h"
#include "application/pages/DetailsPage.h"
#include "application/pages/SettingsPage.h"
#include "battery/QDBattery.h"
#include "facts/ValueTexts.h"
#include "mac/QDMac.h"
#include "platform/RunLoop.h"
#include "platform/UserDefaults.h"
#include "settings/ApplicationPreferences.h"

namespace quindle {

namespace {

/// What people call the computer: the model's words, else its identifier.
QString nameOf(const QDMac& mac)
{
    const QString words = knownText(mac.LongModel());
    return words.isEmpty() ? knownText(mac.Model()) : words;
}

QString stateOf(const QDBattery* battery)
{
    if (!battery)
        return QStringLiteral("No battery");
    return joined(percentText(battery->StateOfCharge()), besideEachOther(), battery->BatteryState());
}

} // namespace

ApplicationProgram::ApplicationProgram(const Platform& platform, ApplicationPreferences& preferences,
                                       Bundle& helperBundle, bool placesWindows)
    : m_platform(platform)
    , m_helperBundle(helperBundle)
    , m_delegate(m_platform, preferences, m_interface, &QDMac::init, noControllers)
    , m_settings(preferences, platform.userDefaults.standard(), platform.loginItems, platform.bundle,
                 platform.distributedNotificationCenter)
    , m_paneBundle(platform.bundle)
    , m_general(m_settings, m_delegate, platform.distributedNotificationCenter, m_paneBundle,
                [this] { return m_delegate.dailyUploadText(); })
{
    m_delegate.applicationDidFinishLaunching();
    connect(&m_delegate, &HelperAppDelegate::statusItemRefreshed, this, &ApplicationProgram::followBattery);
    connect(&m_delegate, &HelperAppDelegate::statusItemRefreshed, this, &ApplicationProgram::refreshed);
    connect(&m_delegate.myMac(), &QDMac::changed, this, &ApplicationProgram::refreshed);
    connect(this, &ApplicationProgram::refreshed, &m_general, &GeneralPreferencesController::refresh);
    connect(this, &ApplicationProgram::refreshed, this, &ApplicationProgram::showState);
    followBattery();
    m_window = std::make_unique<ApplicationWindow>(pages(), platform.userDefaults.standard(), placesWindows);
    connect(m_window.get(), &ApplicationWindow::seen, this, &ApplicationProgram::watch);
    showState();
}

ApplicationProgram::~ApplicationProgram() = default;

std::vector<ApplicationPage> ApplicationProgram::pages()
{
    const auto kept = [this](auto* page) {
        using Page = std::remove_pointer_t<decltype(page)>;
        connect(this, &ApplicationProgram::refreshed, page, &Page::refresh);
        return page;
    };
    return {
        {QStringLiteral("Battery"),
         [this, kept](QWidget* parent) {
             return kept(new BatteryPage(m_interface, m_platform.powerSources, parent));
         }},
        {QStringLiteral("Details"),
         [this, kept](QWidget* parent) {
             return kept(new DetailsPage(m_platform, m_delegate.myMac(), m_helperBundle, parent));
         }},
        {QStringLiteral("Settings"), [this](QWidget* parent) { return new SettingsPage(m_general, parent); }},
    };
}

// At each refresh, because another battery is another object.
void ApplicationProgram::followBattery()
{
    if (const QDBattery* battery = m_delegate.myMac().Battery())
        connect(battery, &QDBattery::changed, this, &ApplicationProgram::refreshed, Qt::UniqueConnection);
}

void ApplicationProgram::showState()
{
    if (!m_window)
        return;
    const QDMac& mac = m_delegate.myMac();
    m_window->setComputer(nameOf(mac), stateOf(mac.Battery()));
}

// What is looked at is refreshed on time.
void ApplicationProgram::watch(bool isSeen)
{
    m_watched = isSeen ? m_platform.runLoop.keepPunctual() : Punctuality();
}

void ApplicationProgram::present()
{
    m_window->present();
}

} // namespace quindle

#include "moc_ApplicationProgram.cpp"
