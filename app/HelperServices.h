#pragma once

#include <memory>
#include <variant>

#include <QString>

#include "platform/Platform.h"

namespace quindle {

class HelperAppDelegate;

/// What the helper runs on: this computer, or the one that a machine file recorded, shown in this desktop's
/// tray and moving on this desktop's loop either way.
class HelperServices
{
public:
    virtual ~HelperServices() = default;

    virtual Platform platform() = 0;

    /// Lets a recorded computer's later states happen in their time; this computer does so by itself.
    virtual void play(HelperAppDelegate& delegate) = 0;

    /// The services that the environment asks for: QUINDLE_MACHINE names a machine file, QUINDLE_SYSFS a folder
    /// in place of /sys. The text is why there are none: one line for standard error.
    static std::variant<std::unique_ptr<HelperServices>, QString> fromEnvironment();
};

} // namespace quindle
