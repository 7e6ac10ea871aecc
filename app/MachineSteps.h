#pragma once

#include <functional>
#include <vector>

#include "platform/recorded/MachineFile.h"

namespace quindle {

class HelperAppDelegate;
struct Platform;
struct RecordedPlatform;

/// Plays one later state of a recorded computer to a launched helper: the state is entered, the actions
/// happen in their order, then the battery (where the computer has one) and the status item are refreshed
/// once each. `distributed` notifications and others go through `platform`, the services that the helper was
/// given.
void playStep(const MachineStep& step, RecordedPlatform& recorded, const Platform& platform,
              HelperAppDelegate& delegate);

/// Plays each step on the main loop at its time, `MachineStep::after` seconds after the previous one, the
/// first counted from now, and calls `entered` before each with the number of steps entered with it. All
/// arguments must live as long as the delegate; destroying it ends the play.
void playStepsInTime(const std::vector<MachineStep>& steps, RecordedPlatform& recorded,
                     const Platform& platform, HelperAppDelegate& delegate,
                     const std::function<void(std::size_t steps)>& entered = {});

} // namespace quindle
