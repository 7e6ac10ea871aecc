#include "application/ApplicationProgram.h"

#include <cstdlib>

#include "app/StoredUnits.h"
#include "application/pages/BatteryPage.h"
#include "application/pages/DetailsPage.h"
#include "application/pages/HistoryPage.h"
#include "application/pages/SettingsPage.h"
#include "application/snapshots/SnapshotsPage.h"
#include "battery/QDBattery.h"
#include "common/Translation.h"
#include "facts/ShownTexts.h"
#include "facts/ValueTexts.h"
#include "history/SavedHistory.h"
#include "mac/QDMac.h"
#include "platform/Host.h"
#include "platform/NotificationCenter.h"
#include "platform/RunLoop.h"
#include "platform/UserDefaults.h"
#include "records/SampleStore.h"
#include "records/trend/CapacityPoints.h"
#include "settings/ApplicationPreferences.h"
#include "settings/HistorySettings.h"

namespace quindle {

namespace {

constexpr qint64 timeBetweenAsking = 600; // seconds

/// What people call the computer: the model's words, else its identifier.
QString nameOf(const QDMac& mac)
{
    const QString words = knownText(mac.LongModel());
    return words.isEmpty() ? knownText(mac.Model()) : words;
}

/// The file of the history; empty for a user without a home folder.
QString pathIn(const Platform& platform, QString (*file)(const QString& folder))
{
    const QStringList folders = platform.userDirectories.applicationSupportDirectories();
    return folders.isEmpty() ? QString() : file(folders.constFirst());
}

qint64 secondsNow(const Platform& platform)
{
    return platform.clock.now().toSecsSinceEpoch();
}

QString stateOf(const QDBattery* battery)
{
    if (!battery)
        return translated("Facts", "No battery");
    return besideEachOther(percentText(battery->StateOfCharge()),
                           modelText(FactPlace::View, battery->BatteryState()));
}

} // namespace

ApplicationProgram::ApplicationProgram(const Platform& platform, ApplicationPreferences& preferences,
                                       Bundle& helperBundle, bool placesWindows,
                                       const ApplicationExtras& extras)
    : m_platform(platform)
    , m_helperBundle(helperBundle)
    , m_extras(extras)
    , m_delegate(m_platform, preferences, m_interface, &QDMac::init, noControllers)
    , m_settings(preferences, platform.userDefaults.standard(), platform.loginItems, platform.bundle,
                 platform.distributedNotificationCenter)
    , m_paneBundle(platform.bundle)
    , m_general(m_settings, m_delegate, platform.distributedNotificationCenter, m_paneBundle,
                [this] { return m_delegate.dailyUploadText(); })
    , m_snapshots(pathIn(platform, &savedHistoryFile))
    , m_samples(pathIn(platform, &historyFile))
{
    followStoredUnits(m_platform, m_delegate);
    m_delegate.applicationDidFinishLaunching(HelperAppDelegate::Program::Companion);
    connect(&m_delegate, &HelperAppDelegate::statusItemRefreshed, this, &ApplicationProgram::followBattery);
    connect(&m_delegate, &HelperAppDelegate::statusItemRefreshed, this, &ApplicationProgram::refreshed);
    connect(&m_delegate.myMac(), &QDMac::changed, this, &ApplicationProgram::refreshed);
    connect(this, &ApplicationProgram::refreshed, &m_general, &GeneralPreferencesController::refresh);
    connect(this, &ApplicationProgram::refreshed, this, &ApplicationProgram::showState);
    // The helper shows the same units.
    m_interface.setClickObserver([this](FactClick) {
        m_platform.distributedNotificationCenter.post(QStringLiteral("SettingsChangedNotification"));
    });
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
    const auto battery = [this, kept](QWidget* parent) { return kept(new BatteryPage(m_interface, parent)); };
    const auto history = [this](QWidget* parent) { return makeHistoryPage(parent); };
    const auto snapshots = [this](QWidget* parent) { return makeSnapshotsPage(parent); };
    const auto details = [this, kept](QWidget* parent) {
        return kept(
            new DetailsPage(m_platform, m_delegate.myMac(), m_helperBundle, m_extras.registryAsItIs, parent));
    };
    const auto settings = [this](QWidget* parent) {
        auto* page = new SettingsPage(
            m_general, m_platform.userDefaults.standard(), m_platform.distributedNotificationCenter,
            m_extras.powerManagers, [this] { deleteHistory(); }, parent);
        connect(&m_samples, &SavedSamples::message, page, &SettingsPage::showHistoryMessage);
        connect(&m_snapshots, &SavedSnapshots::message, page, &SettingsPage::showHistoryMessage);
        return page;
    };
    return {{QStringLiteral(QT_TRANSLATE_NOOP("Pages", "Battery")), battery},
            {QStringLiteral(QT_TRANSLATE_NOOP("Pages", "History")), history},
            {QStringLiteral(QT_TRANSLATE_NOOP("Pages", "Snapshots")), snapshots},
            {QStringLiteral(QT_TRANSLATE_NOOP("Pages", "Details")), details},
            {QStringLiteral(QT_TRANSLATE_NOOP("Pages", "Settings")), settings}};
}

QWidget* ApplicationProgram::makeHistoryPage(QWidget* parent)
{
    auto* page = new HistoryPage(parent);
    connectSamples(*page);
    const auto showWear = [this, page] {
        page->setCapacities(capacityPoints(m_snapshots.records()), m_snapshots.fault());
    };
    connect(&m_snapshots, &SavedSnapshots::changed, page, showWear);
    // Nothing is recorded more often than once a minute.
    const auto follow = [this, page, shown = secondsNow(m_platform)]() mutable {
        const qint64 now = secondsNow(m_platform);
        if (!page->isVisible() || std::abs(now - shown) < 60)
            return;
        shown = now;
        m_snapshots.load();
        page->setNow(now);
        if (std::abs(now - m_asked) >= timeBetweenAsking)
            askForSamples();
    };
    connect(this, &ApplicationProgram::refreshed, page, follow);
    page->setNow(secondsNow(m_platform));
    showWear();
    m_snapshots.load();
    return page;
}

void ApplicationProgram::connectSamples(HistoryPage& page)
{
    connect(&page, &HistoryPage::samplesWanted, &m_samples, &SavedSamples::read);
    connect(&m_samples, &SavedSamples::found, &page, &HistoryPage::setSamples);
    connect(&m_samples, &SavedSamples::changed, &page,
            [this, &page] { page.setNow(secondsNow(m_platform)); });
    connect(&m_samples, &SavedSamples::message, &page, &HistoryPage::showMessage);
    connect(&page, &HistoryPage::settingsWanted, this,
            [this] { m_window->showPage(QStringLiteral("Settings")); });
    connect(&page, &HistoryPage::shown, this, [this, &page] {
        page.setRecording(recordsHistory(m_platform.userDefaults.standard()));
        askForSamples();
    });
}

// A running helper has up to an hour of them in memory; once handed over, they show in the file.
void ApplicationProgram::askForSamples()
{
    m_asked = secondsNow(m_platform);
    m_platform.distributedNotificationCenter.post(samplesWantedNotification());
}

void ApplicationProgram::takeOverFirstWeek(const std::function<std::unique_ptr<PowerHistory>()>& service)
{
    if (recordsHistory(m_platform.userDefaults.standard()))
        m_samples.takeOver(service, secondsNow(m_platform));
}

QWidget* ApplicationProgram::makeSnapshotsPage(QWidget* parent)
{
    auto* page = new SnapshotsPage(
        m_snapshots, [this] { return m_delegate.myMac().getDataForSaving(false); }, parent);
    connect(this, &ApplicationProgram::refreshed, page, &SnapshotsPage::refresh);
    return page;
}

void ApplicationProgram::deleteHistory()
{
    // First, or what the helper has in memory would be stored afterwards.
    m_platform.distributedNotificationCenter.post(historyDeletedNotification());
    m_snapshots.removeAll();
    m_samples.removeAll();
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

// What the user sees is refreshed on time.
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
