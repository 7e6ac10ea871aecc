#include "platform/macos/MacPlatform.h"

#include <QUuid>

#include "platform/FileUrl.h"
#include "platform/macos/LaidOutRegistry.h"
#include "platform/macos/MacCalls.h"
#include "platform/macos/MacHost.h"
#include "platform/macos/MacLoginItems.h"
#include "platform/macos/MacNotifications.h"
#include "platform/macos/MacPowerSources.h"
#include "platform/macos/MacRegistry.h"
#include "platform/macos/MacRunLoop.h"
#include "platform/macos/MacStatusItem.h"
#include "platform/macos/MacUrlSession.h"
#include "platform/macos/MacUserDefaults.h"
#include "platform/macos/MacWorkspace.h"

namespace quindle {

namespace {

QString helperIdentifier()
{
    return QStringLiteral("com.fernhollow.Quindle-Helper");
}

std::unique_ptr<LoginCalls> loginItemOf(MacPlatform::Program program)
{
    return program == MacPlatform::Program::Helper ? ownLoginItem() : loginItemNamed(helperIdentifier());
}

/// The helper's own settings are shared with the application and with programs that run from no bundle. The
/// system does not open a program's own domain as a suite.
std::unique_ptr<DefaultsCalls> defaultsOf(const Bundle& running)
{
    const QVariantMap info = running.infoDictionary().value_or(QVariantMap());
    const bool isHelper = info.value(QStringLiteral("CFBundleIdentifier")) == helperIdentifier();
    return isHelper ? standardDefaults(helperIdentifier()) : suiteDefaults(helperIdentifier());
}

} // namespace

struct MacPlatform::Services
{
    explicit Services(Program program)
        : loginCalls(loginItemOf(program))
        , userDefaults(suiteDefaults, defaultsOf(*bundle), helperIdentifier(), homeFolderOfSystem())
    {
    }

    std::unique_ptr<RegistryCalls> registryCalls = systemRegistry();
    std::unique_ptr<PowerCalls> powerCalls = systemPowerSources();
    std::unique_ptr<NotificationCalls> notificationCalls = systemNotifications();
    std::unique_ptr<TimerCalls> timerCalls = systemTimers();
    std::unique_ptr<OpenCalls> openCalls = systemWorkspace();
    std::unique_ptr<HttpCalls> httpCalls = systemHttp();
    std::unique_ptr<LoginCalls> loginCalls;
    std::unique_ptr<Bundle> bundle = runningBundle();
    std::unique_ptr<Host> host = systemHost();
    std::unique_ptr<UserDirectories> userDirectories = systemUserDirectories();
    std::unique_ptr<WorkspaceNotifications> sleep = systemSleepNotifications();
    std::unique_ptr<Application> application = systemApplication();

    MacRegistry registryAsItIs{*registryCalls};
    LaidOutRegistry registry{registryAsItIs};
    MacPowerSources powerSources{*powerCalls};
    MacUserDefaultsDatabases userDefaults;
    NotificationCenter notificationCenter;
    MacDistributedNotificationCenter distributedNotificationCenter{*notificationCalls,
                                                                   QUuid::createUuid().toString()};
    MacRunLoop runLoop{*timerCalls};
    MacPowerEvents powerEvents{*powerCalls, runLoop};
    MacWorkspace workspace{*openCalls};
    MacClock clock;
    MacSystemFiles systemFiles;
    MacUrlSession urlSession{*httpCalls};
    MacLoginItems loginItems{*loginCalls, fileUrl(helperBundlePath(bundle->path()))};
    MacStatusBar statusBar{systemStatusItem, bundle->resourcesPath()};
};

MacPlatform::MacPlatform(Program program)
    : m_services(std::make_unique<Services>(program))
{
}

MacPlatform::~MacPlatform() = default;

Bundle& MacPlatform::bundle() const
{
    return *m_services->bundle;
}

RunLoop& MacPlatform::runLoop()
{
    return m_services->runLoop;
}

UserDefaultsDatabases& MacPlatform::userDefaults()
{
    return m_services->userDefaults;
}

StatusBar& MacPlatform::statusBar()
{
    return m_services->statusBar;
}

IORegistry& MacPlatform::registryAsItIs()
{
    return m_services->registryAsItIs;
}

Platform MacPlatform::services(StatusBar& statusBar)
{
    Services& own = *m_services;
    return {.registry = own.registry,
            .powerSources = own.powerSources,
            .userDefaults = own.userDefaults,
            .notificationCenter = own.notificationCenter,
            .distributedNotificationCenter = own.distributedNotificationCenter,
            .workspaceNotifications = *own.sleep,
            .workspace = own.workspace,
            .bundle = *own.bundle,
            .clock = own.clock,
            .host = *own.host,
            .systemFiles = own.systemFiles,
            .runLoop = own.runLoop,
            .statusBar = statusBar,
            .application = *own.application,
            .urlSession = own.urlSession,
            .userDirectories = *own.userDirectories,
            .loginItems = own.loginItems,
            .powerEvents = own.powerEvents};
}

} // namespace quindle
