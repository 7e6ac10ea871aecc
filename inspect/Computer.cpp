#include "inspect/Computer.h"

#include <utility>

#include "app/MachineSteps.h"
#include "inspect/CommandLine.h"
#include "inspect/JsonState.h"

namespace quindle {

std::variant<std::unique_ptr<Computer>, MachineRefusal> Computer::open(const CommandLine& commandLine)
{
    Machine machine;
    const bool isRecorded = !commandLine.machineFile.isEmpty();
    if (isRecorded) {
        MachineResult result = readMachineFile(commandLine.machineFile);
        if (const auto* refusal = std::get_if<MachineRefusal>(&result))
            return *refusal;
        machine = std::get<Machine>(std::move(result));
    }
    return std::unique_ptr<Computer>(
        new Computer(std::move(machine), isRecorded, commandLine.sysfsDirectory));
}

Computer::Computer(Machine machine, bool isRecorded, const QString& sysfsDirectory)
    : m_machine(std::move(machine))
    , m_linux(sysfsDirectory, SettingsAccess::ReadOnly)
    , m_recorded(m_machine.keys, m_linux.bundle())
    , m_settings(isRecorded ? static_cast<UserDefaultsDatabases&>(m_recorded.userDefaults)
                            : m_linux.userDefaults())
    , m_platform(isRecorded ? m_recorded.platform() : thisComputer())
{
}

Platform Computer::thisComputer()
{
    const Platform linux = m_linux.services(m_recorded.statusBar);
    return {
        .registry = linux.registry,
        .powerSources = linux.powerSources,
        .userDefaults = m_settings,
        .notificationCenter = m_recorded.notificationCenter,
        .distributedNotificationCenter = m_recorded.distributedNotificationCenter,
        .workspaceNotifications = m_recorded.workspaceNotifications,
        .workspace = m_recorded.workspace,
        .bundle = linux.bundle,
        .clock = linux.clock,
        .host = linux.host,
        .systemFiles = linux.systemFiles,
        .runLoop = m_recorded.runLoop,
        .statusBar = m_recorded.statusBar,
        .application = m_recorded.application,
        .urlSession = m_recorded.urlSession,
        .userDirectories = linux.userDirectories,
        .powerEvents = m_recorded.powerEvents,
    };
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
        events.titlesSet = std::exchange(item->titlesSet, {});
    }
    return events;
}

} // namespace quindle
