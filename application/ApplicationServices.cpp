#include "application/ApplicationServices.h"

#include "app/MachineSteps.h"
#include "app/SilentServices.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/session/LinuxRunLoop.h"
#include "platform/linux/system/LinuxBundle.h"
#include "platform/linux/windows/WindowedApplication.h"
#include "platform/recorded/RecordedPlatform.h"

namespace quindle {

namespace {

QString helperProgramOf(const Bundle& bundle)
{
    return programInBundle(helperBundlePath(bundle.path()), QStringLiteral("quindle-helper"));
}

/// The network too: models are looked up, and snapshots sent, by the helper alone.
struct CommonServices
{
    ServiceOverrides overrides()
    {
        return {.statusBar = &statusBar, .application = &application, .urlSession = &urlSession};
    }

    WindowedApplication application;
    SilentStatusBar statusBar;
    SilentUrlSession urlSession;
};

class ThisComputer : public ApplicationServices
{
public:
    explicit ThisComputer(const QString& systemRoot)
        : m_linux(systemRoot)
        , m_helperBundle(helperProgramOf(m_linux.bundle()))
    {
    }

    Platform platform() override { return m_linux.services(m_common.statusBar).with(m_common.overrides()); }
    IORegistry* registryAsItIs() override { return nullptr; }
    Bundle& helperBundle() override { return m_helperBundle; }
    void play(HelperAppDelegate& /*delegate*/) override {}

private:
    CommonServices m_common;
    LinuxPlatform m_linux;
    LinuxBundle m_helperBundle;
};

class RecordedMachine : public ApplicationServices
{
public:
    explicit RecordedMachine(const Machine& machine)
        : m_steps(machine.steps)
        , m_helperBundle(helperProgramOf(m_programBundle))
        , m_recorded(machine.keys, m_programBundle, machine.file)
        , m_platform(platform())
    {
    }

    Platform platform() override
    {
        ServiceOverrides overrides = m_common.overrides();
        // States follow each other in time, as on a real computer.
        overrides.runLoop = &m_runLoop;
        return m_recorded.platform().with(overrides);
    }

    IORegistry* registryAsItIs() override { return nullptr; }

    Bundle& helperBundle() override
    {
        // What a machine file names is the bundle of the helper that it was recorded by.
        return m_recorded.computer.bundle() ? static_cast<Bundle&>(m_recorded.bundle) : m_helperBundle;
    }

    void play(HelperAppDelegate& delegate) override
    {
        playStepsInTime(m_steps, m_recorded, m_platform, delegate);
    }

private:
    CommonServices m_common;
    std::vector<MachineStep> m_steps;
    LinuxBundle m_programBundle;
    LinuxBundle m_helperBundle;
    LinuxRunLoop m_runLoop;
    RecordedPlatform m_recorded;
    Platform m_platform;
};

} // namespace

std::unique_ptr<ApplicationServices> ApplicationServices::ofThisComputer(const QString& systemRoot)
{
    return std::make_unique<ThisComputer>(systemRoot);
}

std::unique_ptr<ApplicationServices> ApplicationServices::ofMachine(const Machine& machine)
{
    return std::make_unique<RecordedMachine>(machine);
}

} // namespace quindle
