#pragma once

#include <memory>

#include <QString>

#include "platform/Platform.h"

namespace quindle {

class HelperAppDelegate;
struct Machine;

/// What the helper runs on: this computer, or the one that a machine file recorded, shown in this desktop's
/// tray and moving on this desktop's loop either way.
class HelperServices
{
public:
    virtual ~HelperServices() = default;

    virtual Platform platform() = 0;

    /// Plays a recorded computer's later states in their time; does nothing for this computer.
    virtual void play(HelperAppDelegate& delegate) = 0;

    /// This computer; `systemRoot` replaces /sys when it is not empty. Needs a QApplication.
    static std::unique_ptr<HelperServices> ofThisComputer(const QString& systemRoot);

    /// A recorded computer. Needs a QApplication.
    static std::unique_ptr<HelperServices> ofMachine(const Machine& machine);
};

} // namespace quindle
