#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <QDateTime>
#include <QHash>
#include <QStringList>
#include <QTimeZone>
#include <QVariantMap>

#include "platform/Bundle.h"
#include "platform/Host.h"
#include "platform/IORegistry.h"
#include "platform/LoginItems.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/PowerSources.h"
#include "platform/RunLoop.h"
#include "platform/StatusBar.h"
#include "platform/UrlSession.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

// The computer as tests invent it: every platform service in memory, changed by hand, recording what is
// asked.
namespace quindle {

/// Entries by name (a class is looked up by the same name), each a dictionary. An entry that is taken out
/// while a handle is open reads as empty.
class FakeRegistry : public IORegistry
{
public:
    static constexpr IOStatus notOpen = static_cast<IOStatus>(0xe00002c2);

    std::map<QString, QVariantMap> entries;
    QStringList reads;                          ///< the keys read one by one, in order
    int calls = 0;                              ///< every call of the service
    std::function<void(const QString&)> onRead; ///< called before each read with its key
    QHash<RegistryObject, QString> openHandles;
    bool tellsWhetherMatched = false; ///< whether entries come and go

    RegistryObject serviceMatchingName(const QString& name) override;
    RegistryObject serviceMatchingClass(const QString& className) override;
    QVariant property(RegistryObject object, const QString& key) override;
    QVariantMap properties(RegistryObject object) override;
    std::optional<bool> isMatched(const QString& name) override;
    IOStatus release(RegistryObject object) override;

private:
    RegistryObject m_nextHandle = 1;
};

class FakePowerSources : public PowerSources
{
public:
    std::optional<QVariantMap> adapter;
    /// The descriptions in order; one that is nullopt cannot be read. No list: the service cannot be
    /// asked.
    std::optional<std::vector<std::optional<QVariantMap>>> sources{std::in_place};
    std::optional<int> limit;
    std::optional<double> energyVoltage;
    QList<PeripheralBattery> devices;
    int calls = 0;

    std::optional<QVariantMap> externalAdapterDetails() override;
    std::optional<int> sourceCount() override;
    std::optional<QVariantMap> description(int source) override;
    std::optional<int> chargeLimit() override;
    std::optional<double> voltageOfEnergies() override { return energyVoltage; }
    QList<PeripheralBattery> peripherals() override;
};

class MemoryUserDefaults : public UserDefaults
{
public:
    QVariantMap values;
    QStringList writes; ///< the keys written, in order

    QVariant object(const QString& key) const override { return values.value(key); }
    void setObject(const QString& key, const QVariant& value) override;
    QVariantMap dictionaryRepresentation() const override { return values; }
    QString file() const override { return {}; }
};

class FakeUserDefaultsDatabases : public UserDefaultsDatabases
{
public:
    MemoryUserDefaults standardDefaults;
    MemoryUserDefaults suiteDefaults;
    bool suiteAvailable = true;

    UserDefaults& standard() override { return standardDefaults; }
    UserDefaults* suite(const QString&) override { return suiteAvailable ? &suiteDefaults : nullptr; }
};

class FakeClock : public Clock
{
public:
    QDateTime time{QDate(2015, 1, 2), QTime(3, 4, 5), QTimeZone::utc()};

    QDateTime now() const override { return time.toLocalTime(); }
    void advance(double seconds);
};

class FakeHost : public Host
{
public:
    QString name = QStringLiteral("Test Computer");
    mutable int calls = 0;

    QString localizedName() const override;
};

class FakeSystemFiles : public SystemFiles
{
public:
    std::map<QString, QVariantMap> files;
    mutable int calls = 0;

    std::optional<QVariantMap> propertyList(const QString& path) const override;
};

/// Timers fire only in `advance`, which moves the clock along: in the order of their planned times, and among
/// equal times in the order they were scheduled.
class FakeRunLoop : public RunLoop
{
public:
    class FakeTimer : public Timer
    {
    public:
        double interval = 0;
        double tolerance = 0;
        double due = 0;
        bool valid = true;
        std::function<void()> fire;

        void invalidate() override { valid = false; }
    };

    explicit FakeRunLoop(FakeClock& clock)
        : m_clock(clock)
    {
    }

    std::vector<std::shared_ptr<FakeTimer>> timers;

    std::shared_ptr<Timer> scheduleRepeatingTimer(double interval, double tolerance,
                                                  std::function<void()> fire) override;
    Punctuality keepPunctual() override;
    void advance(double seconds);

    /// Whether somebody wants ticks on time.
    bool isPunctual() const { return m_punctuality.use_count() > 1; }

private:
    std::shared_ptr<FakeTimer> nextTimer(double until) const;
    void moveTo(double time);

    FakeClock& m_clock;
    double m_time = 0;
    Punctuality m_punctuality = std::make_shared<int>();
};

/// Everything that was set on one status item; outlives the item.
struct StatusItemRecord
{
    double length = 0;
    QStringList titlesSet;
    std::vector<std::shared_ptr<Image>> imagesSet;
    std::vector<double> fontSizesSet;
    QStringList toolTipsSet;
    QStringList fallbackTextsSet;
    bool fallbackOnPower = false;
    std::optional<ShownItem> shown; ///< by the panel
    std::vector<bool> attentionSet;
    StatusMenu* menu = nullptr;
};

class FakeStatusItem : public StatusItem
{
public:
    explicit FakeStatusItem(std::shared_ptr<StatusItemRecord> record)
        : m_record(std::move(record))
    {
    }

    void setTitle(const QString& title) override { m_record->titlesSet.append(title); }
    QString title() const override { return m_record->titlesSet.value(m_record->titlesSet.size() - 1); }
    void setImage(std::shared_ptr<Image> image) override { m_record->imagesSet.push_back(std::move(image)); }
    std::shared_ptr<Image> image() const override;
    void setMenuBarFontSize(double points) override { m_record->fontSizesSet.push_back(points); }
    void setFallbackText(const QString& text) override { m_record->fallbackTextsSet.append(text); }
    void setFallbackOnPower(bool hasPower) override { m_record->fallbackOnPower = hasPower; }
    std::optional<ShownItem> shownItem() override { return m_record->shown; }
    void setToolTipText(const QString& text) override { m_record->toolTipsSet.append(text); }
    void setMenu(StatusMenu* menu) override { m_record->menu = menu; }
    void setNeedsAttention(bool needed) override { m_record->attentionSet.push_back(needed); }

private:
    std::shared_ptr<StatusItemRecord> m_record;
};

class FakeStatusBar : public StatusBar
{
public:
    std::vector<std::shared_ptr<StatusItemRecord>> items; ///< one for each item made

    std::unique_ptr<StatusItem> statusItemWithLength(double length) override;
};

class FakeWorkspace : public Workspace
{
public:
    QStringList launched;

    void launchApplication(const QString& path) override { launched.append(path); }
};

class FakeApplication : public Application
{
public:
    int terminated = 0;
    int activated = 0;

    void terminate() override { ++terminated; }
    void activateIgnoringOtherApplications() override { ++activated; }
    bool showsTranslucentWindows() const override { return false; }
};

class FakeBundle : public Bundle
{
public:
    QString bundlePath = QStringLiteral("/opt/Quindle.app/Contents/Resources/Quindle-Helper.app");
    std::optional<QVariantMap> info = QVariantMap{{QStringLiteral("CFBundleVersion"), QStringLiteral("123")}};

    QString path() const override { return bundlePath; }
    std::optional<QVariantMap> infoDictionary() const override { return info; }
};

/// Answers from `answers`; posts are never answered.
class FakeUrlSession : public UrlSession
{
public:
    std::map<QString, QByteArray> answers;
    QStringList asked;
    QStringList posted;             ///< addresses
    std::vector<QByteArray> bodies; ///< of the posts

    void post(const QString& url, const QByteArray& body,
              std::function<void(int status, const QByteArray& body)> answered) override;
    std::optional<QByteArray> contents(const QString& url) override;
};

class FakeUserDirectories : public UserDirectories
{
public:
    QStringList applicationSupport;

    QStringList applicationSupportDirectories() const override { return applicationSupport; }
};

/// The texts as they were put in, each the item of its place; `urls` is nullopt where the list cannot be
/// read, and an empty text cannot be resolved.
class FakeLoginItems : public LoginItems
{
public:
    std::optional<QStringList> urls{std::in_place};
    int snapshotsLeft = 1000; ///< the list is gone after that many
    std::map<QString, bool> enabled;
    std::vector<std::pair<QString, bool>> switched; ///< every call of setEnabled, in order

    std::optional<std::vector<Item>> snapshot() override;
    std::optional<QString> resolve(Item item) override;
    void insertBeforeFirst(const QString& fileUrl) override { urls->prepend(fileUrl); }
    void remove(Item item) override { urls->removeAt(item); }
    void setEnabled(const QString& identifier, bool isEnabled) override;
};

/// Delivers to this process alone, at once.
class FakeDistributedNotificationCenter : public DistributedNotificationCenter
{
public:
    QStringList posted;

    void addObserver(const QString& name, NotificationCenter::Observer observer) override;
    void post(const QString& name) override;

private:
    NotificationCenter m_center;
};

class FakeWorkspaceNotifications : public WorkspaceNotifications
{
public:
    std::vector<NotificationCenter::Observer> willSleep;
    std::vector<NotificationCenter::Observer> didWake;

    void addWillSleepObserver(NotificationCenter::Observer observer) override;
    void addDidWakeObserver(NotificationCenter::Observer observer) override;
    void sleep() const;
    void wake() const;
};

class FakePowerEvents : public PowerEvents
{
public:
    std::function<void()> observer;

    void setObserver(std::function<void()> newObserver) override { observer = std::move(newObserver); }
};

/// All of them together. Must outlive every object that is made on it.
struct FakePlatform
{
    FakeRegistry registry;
    FakePowerSources powerSources;
    FakeUserDefaultsDatabases userDefaults;
    NotificationCenter notificationCenter;
    FakeDistributedNotificationCenter distributedNotificationCenter;
    FakeWorkspaceNotifications workspaceNotifications;
    FakeWorkspace workspace;
    FakeBundle bundle;
    FakeClock clock;
    FakeHost host;
    FakeSystemFiles systemFiles;
    FakeRunLoop runLoop{clock};
    FakeStatusBar statusBar;
    FakeApplication application;
    FakeUrlSession urlSession;
    FakeUserDirectories userDirectories;
    FakeLoginItems loginItems;
    FakePowerEvents powerEvents;

    Platform platform{registry,
                      powerSources,
                      userDefaults,
                      notificationCenter,
                      distributedNotificationCenter,
                      workspaceNotifications,
                      workspace,
                      bundle,
                      clock,
                      host,
                      systemFiles,
                      runLoop,
                      statusBar,
                      application,
                      urlSession,
                      userDirectories,
                      loginItems,
                      powerEvents};

    FakePlatform() = default;
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    /// The battery's registry entry; made when it is not there.
    QVariantMap& battery() { return registry.entries[QStringLiteral("AppleSmartBattery")]; }

    /// The computer's own registry entry; made when it is not there.
    QVariantMap& expert() { return registry.entries[QStringLiteral("IOPlatformExpertDevice")]; }

    /// Gives the computer that model (as NUL-terminated bytes) and serial number.
    void setComputer(const QString& model, const QString& serial);
};

} // namespace quindle
