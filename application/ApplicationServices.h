#pragma once

#include <memory>

#include <QString>

#include "platform/Platform.h"

namespace quindle {

class HelperAppDelegate;
struct Machine;

/// What the application runs on: this computer, or the one that a machine file recorded. It shows nothing in
/// a panel and sends nothing.
class ApplicationServices
{
public:
    virtual ~ApplicationServices() = default;

    virtual Platform platform() = 0;

    /// The registry as captures hold it; null where that is the platform's.
    virtual IORegistry* registryAsItIs() = 0;

    /// The bundle of the helper, among the resources of this one.
    virtual Bundle& helperBundle() = 0;

    /// Plays a recorded computer's later states in their time; does nothing for this computer.
    virtual void play(HelperAppDelegate& delegate) = 0;

    /// This computer; `systemRoot` replaces /sys when it is not empty. Both need a QApplication.
    static std::unique_ptr<ApplicationServices> ofThisComputer(const QString& systemRoot);
    static std::unique_ptr<ApplicationServices> ofMachine(const Machine& machine);
};

} // namespace quindle
