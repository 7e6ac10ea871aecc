#pragma once

#include <memory>
#include <variant>
#include <vector>

#include <QString>

#include "inspect/OwnComputer.h"
#include "platform/Platform.h"
#include "platform/macos/LaidOutRegistry.h"
#include "platform/recorded/MachineFile.h"
#include "platform/recorded/OverlaidUserDefaults.h"
#include "platform/recorded/RecordedPlatform.h"

namespace quindle {

class HelperAppDelegate;
struct CommandLine;
struct RecentEvents;

/// The computer that a call looks at: a machine file's, or this one. Either way nothing is shown, sent or
/// stored: status bar, workspace and notifications are recorded ones, and settings are written in memory
/// only. No time passes in it, unless the call follows it: then timers fire, and changes of this computer's
/// power supplies, sleep and settings are noticed.
class Computer
{
public:
    /// The computer that the call names, or the line that says why its machine file is refused.
    static std::variant<std::unique_ptr<Computer>, MachineRefusal> open(const CommandLine& commandLine);

    const Platform& platform() const { return m_platform; }

    /// Whether the registry is read as a Mac's.
    bool isMac();

    /// The same with the registry as it is: a capture is read by a back end, and used to improve it.
    Platform platformToCapture();

    /// Plays a recorded computer's later states in their time; does nothing for this computer.
    void playInTime(HelperAppDelegate& delegate);

    /// How many later states there are; 0 for this computer.
    std::size_t stepCount() const { return m_machine.steps.size(); }

    /// Plays one of them to a launched helper.
    void playStep(std::size_t index, HelperAppDelegate& delegate);

    /// What the recorded services were asked for since the last call; refreshes are counted elsewhere.
    RecentEvents takeEvents();

private:
    Computer(Machine machine, const CommandLine& commandLine);

    Platform thisComputer(bool isFollowed);
    /// That of a Mac before it is laid out; null where it is read as it is.
    IORegistry* macRegistryAsItIs();

    Platform recordedComputer(const CommandLine& commandLine);

    Machine m_machine;
    OwnComputer m_own;
    RecordedPlatform m_recorded;
    LaidOutRegistry m_macRegistry;
    OverlaidUserDefaultsDatabases m_settings;
    Platform m_platform;
};

} // namespace quindle
