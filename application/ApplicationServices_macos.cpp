#include "app/MachineSteps.h"
#include "app/SilentServices.h"
#include "application/ApplicationServices.h"
#include "platform/Bundle.h"
#include "platform/macos/MacCalls.h"
#include "platform/macos/MacPlatform.h"
#include "platform/recorded/RecordedPlatform.h"

namespace quindle {

namespace {

/// A Mac with the window, without an item of its own. Models are looked up, and snapshots sent, by the helper
/// alone.
struct ApplicationOnMac
{
    Platform platform() { return mac.services(statusBar).with({.urlSession = &urlSession}); }
    std::unique_ptr<Bundle> helperBundle() const { return bundleAt(helperBundlePath(mac.bundle().path())); }

    MacPlatform mac{MacPlatform::Program::Application};
    SilentStatusBar statusBar;
    SilentUrlSession urlSession;
};

class ThisMac : public ApplicationServices
{
public:
    Platform platform() override { return m_own.platform(); }
    IORegistry* registryAsItIs() override { return &m_own.mac.registryAsItIs(); }
    Bundle& helperBundle() override { return *m_helperBundle; }
    void play(HelperAppDelegate& /*delegate*/) override {}

private:
    ApplicationOnMac m_own;
    std::unique_ptr<Bundle> m_helperBundle = m_own.helperBundle();
};

class RecordedMachine : public ApplicationServices
{
public:
    explicit RecordedMachine(const Machine& machine)
        : m_steps(machine.steps)
        , m_recorded(machine.keys, m_own.mac.bundle(), machine.file)
        , m_platform(platform())
    {
    }

    Platform platform() override
    {
        const Platform own = m_own.platform();
        // States follow each other in time, as on a real computer.
        return m_recorded.platform().with({.runLoop = &own.runLoop,
                                           .statusBar = &own.statusBar,
                                           .application = &own.application,
                                           .urlSession = &own.urlSession});
    }

    IORegistry* registryAsItIs() override { return nullptr; }

    Bundle& helperBundle() override
    {
        // What a machine file names is the bundle of the helper that it was recorded by.
        return m_recorded.computer.bundle() ? static_cast<Bundle&>(m_recorded.bundle) : *m_helperBundle;
    }

    void play(HelperAppDelegate& delegate) override
    {
        playStepsInTime(m_steps, m_recorded, m_platform, delegate);
    }

private:
    std::vector<MachineStep> m_steps;
    ApplicationOnMac m_own;
    std::unique_ptr<Bundle> m_helperBundle = m_own.helperBundle();
    RecordedPlatform m_recorded;
    Platform m_platform;
};

} // namespace

std::unique_ptr<ApplicationServices> ApplicationServices::ofThisComputer(const QString& /*systemRoot*/)
{
    return std::make_unique<ThisMac>();
}

std::unique_ptr<ApplicationServices> ApplicationServices::ofMachine(const Machine& machine)
{
    return std::make_unique<RecordedMachine>(machine);
}

} // namespace quindle
