#include "platform/linux/LinuxPlatform.h"

#include <QAbstractEventDispatcher>
#include <QTimer>

#include "common/Paths.h"
#include "platform/NotificationCenter.h"
#include "platform/linux/ComputerStillness.h"
#include "platform/linux/login/LinuxLoginItems.h"
#include "platform/linux/network/LinuxUrlSession.h"
#include "platform/linux/os/UserFolders.h"
#include "platform/linux/power/EstimatorText.h"
#include "platform/linux/power/LinuxPowerEvents.h"
#include "platform/linux/power/LinuxPowerSources.h"
#include "platform/linux/power/LinuxRegistry.h"
#include "platform/linux/power/PeripheralBatteries.h"
#include "platform/linux/power/PowerSampler.h"
#include "platform/linux/session/BluetoothBatteries.h"
#include "platform/linux/session/LinuxApplication.h"
#include "platform/linux/session/LinuxNotifications.h"
#include "platform/linux/session/LinuxRunLoop.h"
#include "platform/linux/settings/LinuxUserDefaults.h"
#include "platform/linux/system/LinuxBundle.h"
#include "platform/linux/system/LinuxHost.h"
#include "platform/linux/system/LinuxWorkspace.h"

namespace quindle {

namespace {

// A coarse timer may be early by a twentieth.
constexpr std::chrono::milliseconds timerLateness(300);

QString rootOr(const QString& systemRoot)
{
    return systemRoot.isEmpty() ? QStringLiteral("/sys") : systemRoot;
}

std::string supplyFolder(const QString& systemRoot)
{
    return pathBytes(rootOr(systemRoot) + QStringLiteral("/class/power_supply")).toStdString();
}

/// Another root is another computer, which this one's device tree does not describe.
LinuxRegistry::Folders firmwareFolders(const QString& systemRoot)
{
    return {.dmi = rootOr(systemRoot) + QStringLiteral("/class/dmi/id"),
            .deviceTree = systemRoot.isEmpty() ? QStringLiteral("/proc/device-tree") : QString()};
}

} // namespace

struct LinuxPlatform::Services
{
    Services(const QString& systemRoot, SettingsAccess settingsAccess)
        : supplies(supplyFolder(systemRoot))
        , sampler(supplies)
        , peripherals(supplies, bluetoothOf(systemRoot))
        , registry(sampler, firmwareFolders(systemRoot))
        , powerSources(sampler, &peripherals)
        , userDefaults(settingsFolder(), settingsAccess)
        , workspaceNotifications(runLoop)
        , urlSession(networkModule(bundle))
        , loginItems(loginItemPlaces(bundle.path()), settingsAccess)
        , powerEvents([this] { sampler.lookAgain(); })
    {
        // A sample lasts for one turn of the main loop.
        using Loop = QAbstractEventDispatcher;
        sampler.setLateObserver([this] { powerEvents.announce(); });
        firstTime.setSingleShot(true);
        firstTime.callOnTimeout([this] {
            sampler.expire();
            powerEvents.announce();
        });
        sampler.setTimeExpected(
            [this](std::chrono::milliseconds in) { firstTime.start(in + timerLateness); });
        const auto expire = [this] { sampler.expire(); };
        QObject::connect(Loop::instance(), &Loop::aboutToBlock, &turns, expire);
        QObject::connect(Loop::instance(), &Loop::awake, &turns, expire);
    }

    /// Another root is another computer.
    PeripheralBatteries::Bluetooth bluetoothOf(const QString& systemRoot)
    {
        if (!systemRoot.isEmpty())
            return {};
        return [this] { return bluetooth.latest(); };
    }

    std::string supplies;
    PowerSampler sampler;
    BluetoothBatteries bluetooth;
    PeripheralBatteries peripherals;
    LinuxRegistry registry;
    LinuxPowerSources powerSources;
    LinuxUserDefaultsDatabases userDefaults;
    NotificationCenter notificationCenter;
    LinuxDistributedNotificationCenter distributedNotificationCenter;
    LinuxRunLoop runLoop;
    LinuxWorkspaceNotifications workspaceNotifications;
    LinuxWorkspace workspace;
    LinuxBundle bundle;
    LinuxClock clock;
    LinuxHost host;
    LinuxSystemFiles systemFiles;
    LinuxApplication application;
    LinuxUrlSession urlSession;
    LinuxUserDirectories userDirectories;
    LinuxLoginItems loginItems;
    LinuxPowerEvents powerEvents;
    QTimer firstTime; ///< when a first remaining time can be shown
    QObject turns;
};

LinuxPlatform::LinuxPlatform(const QString& systemRoot, SettingsAccess settingsAccess)
    : m_services(std::make_unique<Services>(systemRoot, settingsAccess))
{
}

LinuxPlatform::~LinuxPlatform() = default;

QByteArray LinuxPlatform::powerMemory() const
{
    return estimatorText(m_services->sampler.estimator().memory());
}

void LinuxPlatform::setPowerMemory(const QByteArray& memory)
{
    // From another process, which is not trusted: what is malformed is ignored.
    if (const auto remembered = estimatorMemoryFrom(memory))
        m_services->sampler.estimator().setMemory(*remembered);
}

void LinuxPlatform::restWhileNothingChanges(std::function<bool()> mayRest)
{
    Services& own = *m_services;
    // The thread that looks may hang in it for longer than this object lives.
    const auto stillness =
        std::make_shared<ComputerStillness>(own.supplies, pathBytes(settingsFolder()).toStdString());
    own.sampler.setStillMoments([stillness] { return stillness->takeMoments(); });
    own.runLoop.restWhen([&own, mayRest = std::move(mayRest)] { return own.sampler.isSteady() && mayRest(); },
                         {.begin = [stillness] { return stillness->begin(); },
                          .isStill = [stillness] { return stillness->isStill(); }});
}

Bundle& LinuxPlatform::bundle() const
{
    return m_services->bundle;
}

RunLoop& LinuxPlatform::runLoop()
{
    return m_services->runLoop;
}

UserDefaultsDatabases& LinuxPlatform::userDefaults()
{
    return m_services->userDefaults;
}

Platform LinuxPlatform::services(StatusBar& statusBar)
{
    Services& own = *m_services;
    return {.registry = own.registry,
            .powerSources = own.powerSources,
            .userDefaults = own.userDefaults,
            .notificationCenter = own.notificationCenter,
            .distributedNotificationCenter = own.distributedNotificationCenter,
            .workspaceNotifications = own.workspaceNotifications,
            .workspace = own.workspace,
            .bundle = own.bundle,
            .clock = own.clock,
            .host = own.host,
            .systemFiles = own.systemFiles,
            .runLoop = own.runLoop,
            .statusBar = statusBar,
            .application = own.application,
            .urlSession = own.urlSession,
            .userDirectories = own.userDirectories,
            .loginItems = own.loginItems,
            .powerEvents = own.powerEvents};
}

} // namespace quindle
