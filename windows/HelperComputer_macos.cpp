#include "windows/HelperComputer_macos.h"

#include "app/MachineServices.h"
#include "app/MachineSteps.h"
#include "platform/Bundle.h"
#include "platform/macos/MacPlatform.h"
#include "platform/recorded/RecordedPlatform.h"

namespace quindle {

namespace {

class ThisMac : public HelperComputer
{
public:
    Platform platform() override { return m_mac.services(m_mac.statusBar()); }
    QString recordingProgram() const override { return mainApplicationProgram(m_mac.bundle().path()); }
    bool mayRunCommands() const override { return true; }
    void play(HelperAppDelegate& /*delegate*/) override {}

private:
    MacPlatform m_mac{MacPlatform::Program::Helper};
};

class RecordedMachine : public HelperComputer
{
public:
    explicit RecordedMachine(const Machine& machine)
        : m_steps(machine.steps)
        , m_recorded(machine.keys, m_mac.bundle(), machine.file)
        , m_urlSession(m_recorded.computer, m_recorded.urlSession, m_own.urlSession)
        , m_platform(platform())
    {
    }

    Platform platform() override
    {
        // One that names no bundle stands in for this computer, and its application is installed here.
        return m_recorded.platform().with(
            {.workspace = m_recorded.computer.bundle() ? nullptr : &m_own.workspace,
             .runLoop = &m_own.runLoop,
             .statusBar = &m_own.statusBar,
             .application = &m_own.application,
             .urlSession = &m_urlSession});
    }

    QString recordingProgram() const override
    {
        return isHistoryKeptOf(m_recorded.computer) ? mainApplicationProgram(m_mac.bundle().path())
                                                    : QString();
    }

    bool mayRunCommands() const override { return false; }

    void play(HelperAppDelegate& delegate) override
    {
        playStepsInTime(m_steps, m_recorded, m_platform, delegate);
    }

private:
    std::vector<MachineStep> m_steps;
    MacPlatform m_mac{MacPlatform::Program::Helper};
    Platform m_own = m_mac.services(m_mac.statusBar());
    RecordedPlatform m_recorded;
    MachineUrlSession m_urlSession;
    Platform m_platform;
};

} // namespace

std::unique_ptr<HelperComputer> thisMac()
{
    return std::make_unique<ThisMac>();
}

std::unique_ptr<HelperComputer> machineOnMac(const Machine& machine)
{
    return std::make_unique<RecordedMachine>(machine);
}

} // namespace quindle
