#pragma once

#include <memory>

#include "platform/Platform.h"

namespace quindle {

/// The services of this Mac. Needs a QCoreApplication.
class MacPlatform
{
public:
    enum class Program { Helper, Application };

    explicit MacPlatform(Program program);
    ~MacPlatform();

    Bundle& bundle() const;
    RunLoop& runLoop();
    UserDefaultsDatabases& userDefaults();

    /// All of them, with the battery in the models' units.
    Platform services(StatusBar& statusBar);

    /// The system's status bar.
    StatusBar& statusBar();

    /// The registry as it is, for captures.
    IORegistry& registryAsItIs();

private:
    struct Services;
    std::unique_ptr<Services> m_services;
};

} // namespace quindle
