#include "inspect/Computer.h"

#include <filesystem>
#include <utility>

#include "app/MachineSteps.h"
#include "common/Paths.h"
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

/// A folder without the one that Linux keeps power supplies in is a mistake, not a computer without a
/// battery.
QString supplyFolderFault(const CommandLine& commandLine)
{
    const QByteArray folder = pathBytes(commandLine.sysfsDirectory + QStringLiteral("/class/power_supply"));
    std::error_code error;
    if (isRecorded(commandLine) || commandLine.sysfsDirectory.isEmpty() ||
        std::filesystem::is_directory(folder.toStdString(), error))
        return {};
    return commandLine.sysfsDirectory + QStringLiteral(": holds no folder class/power_supply");
}

/// Connecting to a bus without an address may start one.
bool hasSessionBus()
{
    std::error_code error;
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           std::filesystem::exists((qgetenv("XDG_RUNTIME_DIR") + "/bus").toStdString(), error);
}

} // namespace

std::variant<std::unique_ptr<Computer>, MachineRefusal> Computer::open(const CommandLine& commandLine)
{
    if (const QString fault = supplyFolderFault(commandLine); !fault.isEmpty())
        return MachineRefusal{fault};
    const auto [machine, refusal] = machineNamed(commandLine.machineFile);
    if (!refusal.isEmpty())
        return MachineRefusal{refusal};
    return std::unique_ptr<Computer>(new Computer(machine.value_or(Machine()), commandLine));
}

Computer::Computer(Machine machine, const CommandLine& commandLine)
    : m_machine(std::move(machine))
    , m_own(ownComputer(commandLine.sysfsDirectory))
    , m_recorded(m_machine.keys, m_own.bundle, m_machine.file)
    , m_macRegistry(m_recorded.registry)
    , m_settings(isRecorded(commandLine) ? static_cast<UserDefaultsDatabases&>(m_recorded.userDefaults)
                                         : m_own.userDefaults)
    , m_platform(isRecorded(commandLine) ? recordedComputer(commandLine)
                                         : thisComputer(isFollowed(commandLine)))
{
}

Platform Computer::thisComputer(bool isFollowed)
{
    const Platform own = m_own.services(m_recorded.statusBar);
    const Platform recorded = m_recorded.platform();
    // Only a call that follows lasts long enough to hear of changes.
    const Platform& events = isFollowed ? own : recorded;
    const Platform& bus = hasSessionBus() ? events : recorded;
    // What would show, send or launch something stays recorded; settings are overlaid.
    return recorded.with({.registry = &own.registry,
                          .powerSources = &own.powerSources,
                          .userDefaults = &m_settings,
                          .distributedNotificationCenter = &bus.distributedNotificationCenter,
                          .workspaceNotifications = &events.workspaceNotifications,
                          .bundle = &own.bundle,
                          .clock = &own.clock,
                          .host = &own.host,
                          .systemFiles = &own.systemFiles,
                          .runLoop = &events.runLoop,
                          .userDirectories = &own.userDirectories,
                          .loginItems = &own.loginItems,
                          .powerEvents = &events.powerEvents});
}

Platform Computer::recordedComputer(const CommandLine& commandLine)
{
    // Steps happen at their times while it is followed, which takes a real loop.
    return m_recorded.platform().with({.registry = commandLine.asMac ? &m_macRegistry : nullptr,
                                       .runLoop = isFollowed(commandLine) ? &m_own.runLoop : nullptr});
}

IORegistry* Computer::macRegistryAsItIs()
{
    if (&m_platform.registry == &m_macRegistry)
        return &m_recorded.registry;
    const bool isOwn = &m_platform.registry != &m_recorded.registry;
    return isOwn ? m_own.registryAsItIs : nullptr;
}

bool Computer::isMac()
{
    return macRegistryAsItIs() != nullptr;
}

Platform Computer::platformToCapture()
{
    return m_platform.with({.registry = macRegistryAsItIs()});
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
