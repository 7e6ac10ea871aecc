#include "tests/soak/SoakedHelper.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QWidget>

#include "application/commands/RecordCommand.h"
#include "battery/QDBattery.h"
#include "history/SavedHistory.h"
#include "mac/QDMac.h"
#include "platform/PowerHistory.h"
#include "platform/linux/statusitem/LinuxStatusItem.h"
#include "records/SampleStore.h"

namespace quindle {

namespace {

constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;

QVariantMap batteryEntry()
{
    return {{QStringLiteral("CurrentCapacity"), qint64{3000}},
            {QStringLiteral("MaxCapacity"), qint64{6000}},
            {QStringLiteral("DesignCapacity"), qint64{6500}},
            {QStringLiteral("CycleCount"), qint64{12}},
            {QStringLiteral("Voltage"), qint64{12000}},
            {QStringLiteral("Amperage"), qint64{-1000}},
            {QStringLiteral("ExternalConnected"), false},
            {QStringLiteral("IsCharging"), false},
            {QStringLiteral("FullyCharged"), false},
            {QStringLiteral("AvgTimeToEmpty"), qint64{95}},
            {QStringLiteral("AvgTimeToFull"), qint64{65535}},
            {QStringLiteral("Temperature"), qint64{3031}},
            {QStringLiteral("Manufacturer"), QStringLiteral("SMP")},
            {QStringLiteral("DeviceName"), QStringLiteral("bq20z451")},
            {QStringLiteral("BatterySerialNumber"), QStringLiteral("D86243500XXDLTPAY")},
            {QStringLiteral("ManufactureDate"), qint64{17506}}};
}

QVariantMap computerKeys(const QString& applicationSupport)
{
    const QVariantMap expert{{QStringLiteral("model"), QByteArray("MacBookAir6,2", 14)},
                             {QStringLiteral("IOPlatformSerialNumber"), QStringLiteral("C02MN1TXF5YW")}};
    const QVariantMap info{{QStringLiteral("CFBundleVersion"), QStringLiteral("1")},
                           {QStringLiteral("QDStatisticsHost"), QStringLiteral("statistics.invalid")}};
    const QVariantMap bundle{{QStringLiteral("Path"), QStringLiteral("/opt/a/b/c/d")},
                             {QStringLiteral("Info"), info}};
    return {{QStringLiteral("Registry"), QVariantMap{{QStringLiteral("AppleSmartBattery"), batteryEntry()},
                                                     {QStringLiteral("IOPlatformExpertDevice"), expert}}},
            {QStringLiteral("PowerSources"),
             QVariantList{QVariantMap{{QStringLiteral("Name"), QStringLiteral("InternalBattery-0")},
                                      {QStringLiteral("BatteryHealth"), QStringLiteral("Good")}}}},
            {QStringLiteral("HostName"), QStringLiteral("Test Computer")},
            {QStringLiteral("Bundle"), bundle},
            {QStringLiteral("ApplicationSupport"), QVariantList{applicationSupport}}};
}

/// Later values of the battery alone.
MachineStep batteryStep(const QVariantMap& battery)
{
    const QVariantMap registry{{QStringLiteral("AppleSmartBattery"), battery}};
    return {.remove = {}, .keys = {{QStringLiteral("Registry"), registry}}, .actions = {}};
}

void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

} // namespace

void AnsweringUrlSession::post(const QString& /*url*/, const QByteArray& body,
                               std::function<void(int status, const QByteArray& body)> answered)
{
    require(!body.isEmpty(), "an upload was empty");
    ++posts;
    answered(200, QByteArrayLiteral("stored"));
}

bool Recorder::handOver(const QByteArray& text)
{
    ++starts;
    samples += static_cast<int>(text.count('\n'));
    QByteArray lines = text;
    QBuffer input(&lines);
    input.open(QIODevice::ReadOnly);
    NoPowerHistory nothing;
    // Its models are there for this one call and must not tick.
    RecordedRunLoop still;
    const Platform platform = m_platform.with({.runLoop = &still});
    const int status = recordHistory(platform, nothing, input, [](const QString& line) {
        std::fprintf(stderr, "recording: %s\n", qUtf8Printable(line));
    });
    require(status == 0, "the history could not be recorded");
    return true;
}

std::unique_ptr<StatusItem> UnconnectedStatusBar::statusItemWithLength(double /*length*/)
{
    return std::make_unique<LinuxStatusItem>(QDBusConnection(QStringLiteral("none")), m_runLoop,
                                             StatusItemSurroundings{});
}

SoakedHelper::SoakedHelper()
    : m_recorded(computerKeys(m_folder.path()), m_programBundle)
    , m_userDefaults(m_folder.filePath(QStringLiteral("settings")))
    , m_platform(platform())
{
    const bool copied = QFile::copy(QStringLiteral(QUINDLE_TEST_DATA "/archives/two-records.binary"),
                                    savedHistoryFile(m_folder.path()));
    require(copied, "the saved history could not be put in place");
    recordOldDay();
    m_userDefaults.suite(QStringLiteral("group.fernhollow.Quindle"))
        ->setObject(QStringLiteral("autoUpload"), true);
    m_preferences = std::make_unique<ApplicationPreferences>(m_platform);
    m_delegate = std::make_unique<HelperAppDelegate>(m_platform, *m_preferences, m_interface, &QDMac::init,
                                                     noControllers);
    m_keeper = std::make_unique<SampleKeeper>(m_platform, *m_delegate, m_recorder);
    m_popup = std::make_unique<BatteryPopup>(m_interface, m_recorded.application, m_runLoop);
    QObject::connect(m_delegate.get(), &HelperAppDelegate::dailyUploadStarted, m_delegate.get(),
                     [this] { ++m_gatesOpened; });
    QObject::connect(m_delegate.get(), &HelperAppDelegate::statusItemRefreshed, m_delegate.get(),
                     [this] { ++m_refreshes; });
    m_delegate->applicationDidFinishLaunching();
}

SoakedHelper::~SoakedHelper() = default;

Platform SoakedHelper::platform()
{
    return m_recorded.platform().with({.userDefaults = &m_userDefaults,
                                       .clock = &m_clock,
                                       .runLoop = &m_runLoop,
                                       .statusBar = &m_statusBar,
                                       .urlSession = &m_urlSession});
}

QString SoakedHelper::history() const
{
    return historyFile(m_folder.path());
}

/// One sample a minute, long enough ago to become one an hour.
void SoakedHelper::recordOldDay()
{
    constexpr qint64 age = 50 * 24 * hour;
    const qint64 begin = m_clock.now().toSecsSinceEpoch() - age;
    std::vector<Sample> samples;
    for (qint64 moment = begin; moment < begin + 24 * hour; moment += minute)
        samples.push_back(
            {moment, static_cast<double>(moment / minute % 100), -10, SampleState::Discharging});
    SampleStore store(history());
    require(store.append(samples).isGood(), "the old history could not be put in place");
}

void SoakedHelper::passTenSeconds()
{
    m_seconds += 10;
    if (isEvery(minute))
        changeBattery();
    m_runLoop.advance(10);
    if (isEvery(4 * hour, hour))
        lookAtView();
    if (isEvery(6 * hour, 2 * hour))
        readHistory();
    if (isEvery(8 * hour, 3 * hour))
        sleepForAnHour();
    if (isEvery(12 * hour, 4 * hour))
        swapBattery();
    if (isEvery(3 * hour, 2 * hour))
        toggleUnits();
    QCoreApplication::processEvents();
}

void SoakedHelper::changeBattery()
{
    constexpr double secondsOfCycle = 5.0 * hour;
    const double turn = std::fmod(static_cast<double>(m_seconds), secondsOfCycle) / secondsOfCycle;
    const bool isCharging = turn > 0.6;
    const double charge = isCharging ? (turn - 0.6) / 0.4 : 1 - turn / 0.6;
    m_recorded.computer.enter(batteryStep(
        {{QStringLiteral("CurrentCapacity"), qint64(charge * 6000)},
         {QStringLiteral("Voltage"), qint64(11000 + charge * 1500)},
         {QStringLiteral("Amperage"), qint64(isCharging ? 2000 + m_seconds % 70 : -1000 - m_seconds % 90)},
         {QStringLiteral("ExternalConnected"), isCharging},
         {QStringLiteral("IsCharging"), isCharging},
         {QStringLiteral("AvgTimeToEmpty"), qint64(isCharging ? 65535 : charge * 240)},
         {QStringLiteral("AvgTimeToFull"), qint64(isCharging ? (1 - charge) * 120 : 65535)},
         {QStringLiteral("Temperature"), qint64(3000 + m_seconds / minute % 50)}}));
}

void SoakedHelper::swapBattery()
{
    MachineStep removal;
    removal.remove = {QStringLiteral("Registry.AppleSmartBattery")};
    m_recorded.computer.enter(removal);
    m_runLoop.advance(20);
    QVariantMap other = batteryEntry();
    other.insert(QStringLiteral("BatterySerialNumber"), QString::number(m_seconds));
    m_recorded.computer.enter(batteryStep(other));
    m_runLoop.advance(20);
}

void SoakedHelper::sleepForAnHour()
{
    m_recorded.workspaceNotifications.sleep();
    m_clock.time = m_clock.time.addSecs(hour);
    m_recorded.workspaceNotifications.wake();
}

void SoakedHelper::lookAtView()
{
    m_interface.statusMenu().openView();
    QCoreApplication::processEvents();
    require(m_popup->isOpen(), "the battery view did not open");
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        if (window->isVisible())
            require(!window->grab().isNull(), "the battery view could not be drawn");
    m_runLoop.advance(20);
    m_popup->close();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    require(QApplication::topLevelWidgets().isEmpty(), "a window outlived the battery view");
}

void SoakedHelper::toggleUnits()
{
    m_delegate->myMac().toggleAge();
    m_delegate->myMac().Battery()->toggleAge();
    m_delegate->myMac().Battery()->toggleTemperatureMode();
}

void SoakedHelper::readHistory()
{
    // Each battery's snapshot of each day comes to the two that were there.
    require(m_delegate->getSavedDataArray().size() > 2, "the saved history was not read");
}

int SoakedHelper::changeSetting()
{
    constexpr std::array templates = {"%p%", "%p% %r", "%w W %mA mA %s", "%t %l", "text"};
    ++m_settingsChanged;
    LinuxUserDefaults other(m_folder.filePath(QStringLiteral("settings/group.fernhollow.Quindle.plist")));
    other.setObject(
        QStringLiteral("customStatusBar"),
        QLatin1String(templates.at(static_cast<std::size_t>(m_settingsChanged) % templates.size())));
    other.setInteger(QStringLiteral("showIconsInMenuBar"), m_settingsChanged % 2);
    m_refreshes = 0;
    m_recorded.distributedNotificationCenter.post(QStringLiteral("SettingsChangedNotification"));
    return m_refreshes;
}

} // namespace quindle
