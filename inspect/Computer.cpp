#include "inspect/Computer.h"

#include <utility>

#include <QFileInfo>

#include "app/MachineSteps.h"
#include "inspect/CommandLine.h"
#include "inspect/JsonState.h"

namespace quindle {

namespace {

bool isRecorded(const CommandLine& commandLine)
{
    return !commandLine.machineFile.isEmpty();
}

bool isFollowed(const CommandLine& commandLine)
{
    return commandLine.call == CommandLine::Call::Follow;
}

/// A bus that is asked for without an address may be started for it.
bool hasSessionBus()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

} // namespace

std::variant<std::unique_ptr<Computer>, MachineRefusal> Computer::open(const CommandLine& commandLine)
{
    Machine machine;
    if (isRecorded(commandLine)) {
        MachineResult result = readMachineFile(commandLine.machineFile);
        if (const auto* refusal = std::get_if<MachineRefusal>(&result))
            return *refusal;
        machine = std::get<Machine>(std::move(result));
    }
    return std::unique_ptr<Computer>(new Computer(std::move(machine), commandLine));
}

Computer::Computer(Machine machine, const CommandLine& commandLine)
    : m_machine(std::move(machine))
    , m_linux(commandLine.sysfsDirectory, SettingsAccess::ReadOnly)
    , m_recorded(m_machine.keys, m_linux.bundle(), m_machine.file)
    , m_settings(isRecorded(commandLine) ? static_cast<UserDefaultsDatabases&>(m_recorded.userDefaults)
                                         : m_linux.userDefaults())
    , m_platform(isRecorded(commandLine) ? recordedComputer(isFollowed(commandLine))
                                         : thisComputer(isFollowed(commandLine)))
{
}

Platform Computer::thisComputer(bool isFollowed)
{
    const Platform linux = m_linux.services(m_recorded.statusBar);
    const Platform told = m_recorded.platform();
    const Platform& events = isFollowed ? linux : told;
    return {
        .registry = linux.registry,
        .powerSources = linux.powerSources,
        .userDefaults = m_settings,
        .notificationCenter = m_recorded.notificationCenter,
        .distributedNotificationCenter =
            hasSessionBus() ? events.distributedNotificationCenter : told.distributedNotificationCenter,
        .workspaceNotifications = events.workspaceNotifications,
        .workspace = m_recorded.workspace,
        .bundle = linux.bundle,
        .clock = linux.clock,
        .host = linux.host,
        .systemFiles = linux.systemFiles,
        .runLoop = events.runLoop,
        .statusBar = m_recorded.statusBar,
        .application = m_recorded.application,
        .urlSession = m_recorded.urlSession,
        .userDirectories = linux.userDirectories,
        .loginItems = linux.loginItems,
        .powerEvents = events.powerEvents,
    };
}

Platform Computer::recordedComputer(bool isFollowed)
{
    const Platform recorded = m_recorded.platform();
    return {
        .registry = recorded.registry,
        .powerSources = recorded.powerSources,
        .userDefaults = recorded.userDefaults,
        .notificationCenter = recorded.notificationCenter,
        .distributedNotificationCenter = recorded.distributedNotificationCenter,
        .workspaceNotifications = recorded.workspaceNotifications,
        .workspace = recorded.workspace,
        .bundle = recorded.bundle,
        .clock = recorded.clock,
        .host = recorded.host,
        .systemFiles = recorded.systemFiles,
        .runLoop = isFollowed ? m_linux.services(recorded.statusBar).runLoop : recorded.runLoop,
        .statusBar = recorded.statusBar,
        .application = recorded.application,
        .urlSession = recorded.urlSession,
        .userDirectories = recorded.userDirectories,
        .loginItems = recorded.loginItems,
        .powerEvents = recorded.powerEvents,
    };
}

void Computer::playInTime(HelperAppDelegate& delegate)
{
    playStepsInTime(m_machine.steps, m_recorded, m_platform, delegate);
}

void Computer::playStep(std::size_t index, HelperAppDelegate& delegate)
{
    quindle::playStep(m_machine.steps.at(index), m_recorded, m_platform, delegate);
}

RecentEvents Computer::takeEvents()
{
    RecentEvents events;
    events.launched = m_recorded.workspace.takeLaunched();
    if (const auto& item = m_recorded.statusBar.lastItem()) {
        events.fontSize = item->fontSize;
        events.toolTip = item->toolTip;
        events.titlesSet = std::exchange(item->titlesSet, {});
    }
    return events;
}

} // namespace quindle
