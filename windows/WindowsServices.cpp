#include "windows/WindowsServices.h"

#include "app/MachineSteps.h"
#include "app/SilentServices.h"
#include "platform/UserDefaults.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/system/LinuxBundle.h"
#include "platform/linux/windows/WindowedApplication.h"
#include "platform/recorded/RecordedPlatform.h"
#include "plist/PropertyList.h"
#include "remote/WindowMessage.h"
#include "windows/MirroredUserDefaults.h"
#include "windows/SharedServices.h"

namespace quindle {

namespace {

/// What both kinds of computer have in common.
struct CommonServices
{
    explicit CommonServices(HelperEnd& helper)
        : notifications(helper)
        , runLoop(helper)
        , application(helper, windows)
    {
    }

    ServiceOverrides overrides()
    {
        return {.distributedNotificationCenter = &notifications,
                .workspaceNotifications = &workspaceNotifications,
                .runLoop = &runLoop,
                .statusBar = &statusBar,
                .application = &application,
                .powerEvents = &powerEvents};
    }

    HelpersNotifications notifications;
    HelpersRunLoop runLoop;
    WindowedApplication windows;
    HelpersApplication application;
    SilentStatusBar statusBar;
    SilentWorkspaceNotifications workspaceNotifications;
    SilentPowerEvents powerEvents;
};

class ThisComputer : public WindowsServices
{
public:
    ThisComputer(const QString& systemRoot, HelperEnd& helper)
        : m_common(helper)
        , m_linux(systemRoot)
    {
    }

    Platform platform() override
    {
        ServiceOverrides overrides = m_common.overrides();
        overrides.urlSession = &m_urlSession;
        return m_linux.services(m_common.statusBar).with(overrides);
    }

    HelpersNotifications& notifications() override { return m_common.notifications; }

    void begin(const WindowMessage& request) override { m_linux.setPowerMemory(request.data); }

    void follow(const WindowMessage& message, HelperAppDelegate& /*delegate*/) override
    {
        if (isRequest(message.kind))
            m_linux.setPowerMemory(message.data);
    }

private:
    CommonServices m_common;
    LinuxPlatform m_linux;
    SilentUrlSession m_urlSession;
};

class RecordedMachine : public WindowsServices
{
public:
    RecordedMachine(const Machine& machine, HelperEnd& helper)
        : m_common(helper)
        , m_steps(machine.steps)
        , m_recorded(machine.keys, m_programBundle, machine.file)
        , m_userDefaults(m_recorded.userDefaults, helper)
        , m_withoutNotifications(platform().with({.distributedNotificationCenter = &m_nobody}))
    {
    }

    Platform platform() override
    {
        ServiceOverrides overrides = m_common.overrides();
        overrides.userDefaults = &m_userDefaults;
        return m_recorded.platform().with(overrides);
    }

    HelpersNotifications& notifications() override { return m_common.notifications; }

    void begin(const WindowMessage& request) override
    {
        // A recorded computer's states and settings live in memory, so a new process has to be sent them.
        for (; m_entered < request.number && m_entered < m_steps.size(); ++m_entered)
            m_recorded.computer.enter(m_steps[m_entered]);
        const QVariantMap databases = propertyListFromBytes(request.data).value_or(QVariant()).toMap();
        for (auto database = databases.begin(); database != databases.end(); ++database)
            storeAll(database.key(), database.value().toMap());
    }

    // The helper announces whatever a state announces.
    void follow(const WindowMessage& message, HelperAppDelegate& delegate) override
    {
        while (m_entered < message.number && m_entered < m_steps.size())
            playStep(m_steps[m_entered++], m_recorded, m_withoutNotifications, delegate);
    }

private:
    void storeAll(const QString& database, const QVariantMap& values)
    {
        for (auto value = values.begin(); value != values.end(); ++value)
            m_recorded.computer.setInDatabase(database, value.key(), value.value());
    }

    CommonServices m_common;
    std::vector<MachineStep> m_steps;
    LinuxBundle m_programBundle;
    RecordedPlatform m_recorded;
    MirroredUserDefaultsDatabases m_userDefaults;
    RecordedDistributedNotificationCenter m_nobody;
    Platform m_withoutNotifications;
    std::size_t m_entered = 0;
};

} // namespace

std::unique_ptr<WindowsServices> WindowsServices::ofThisComputer(const QString& systemRoot, HelperEnd& helper)
{
    return std::make_unique<ThisComputer>(systemRoot, helper);
}

std::unique_ptr<WindowsServices> WindowsServices::ofMachine(const Machine& machine, HelperEnd& helper)
{
    return std::make_unique<RecordedMachine>(machine, helper);
}

} // namespace quindle
