#include "app/HelperServices.h"

#include "app/MachineSteps.h"
#include "platform/Bundle.h"
#include "platform/UserDefaults.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/LinuxStatusBar.h"
#include "platform/recorded/RecordedPlatform.h"

namespace quindle {

namespace {

/// How the user wants the item shown, whatever the desktop is: "auto", "label", "wide" or "icon".
std::function<QString()> presentationSetting(UserDefaultsDatabases& databases)
{
    return [&databases] {
        return databases.standard().object(QStringLiteral("statusItemPresentation")).toString();
    };
}

QString iconsFolder(LinuxPlatform& linux)
{
    return linux.bundle().path() + QStringLiteral("/Contents/Resources/icons");
}

class ThisComputer : public HelperServices
{
public:
    explicit ThisComputer(const QString& systemRoot)
        : m_linux(systemRoot)
        , m_statusBar(iconsFolder(m_linux), presentationSetting(m_linux.userDefaults()))
    {
    }

    Platform platform() override { return m_linux.services(m_statusBar); }

    void play(HelperAppDelegate& /*delegate*/) override {}

private:
    LinuxPlatform m_linux;
    LinuxStatusBar m_statusBar;
};

class RecordedMachine : public HelperServices
{
public:
    explicit RecordedMachine(const Machine& machine)
        : m_steps(machine.steps)
        , m_linux(QString())
        , m_recorded(machine.keys, m_linux.bundle())
        , m_statusBar(iconsFolder(m_linux), presentationSetting(m_recorded.userDefaults))
        , m_platform(platform())
    {
    }

    Platform platform() override
    {
        return {.registry = m_recorded.registry,
                .powerSources = m_recorded.powerSources,
                .userDefaults = m_recorded.userDefaults,
                .notificationCenter = m_recorded.notificationCenter,
                .distributedNotificationCenter = m_recorded.distributedNotificationCenter,
                .workspaceNotifications = m_recorded.workspaceNotifications,
                .workspace = m_recorded.workspace,
                .bundle = m_recorded.bundle,
                .clock = m_recorded.clock,
                .host = m_recorded.host,
                .systemFiles = m_recorded.systemFiles,
                .runLoop = m_linux.runLoop(),
                .statusBar = m_statusBar,
                .application = m_linux.application()};
    }

    void play(HelperAppDelegate& delegate) override
    {
        playStepsInTime(m_steps, m_recorded, m_platform, delegate);
    }

private:
    std::vector<MachineStep> m_steps;
    LinuxPlatform m_linux;
    RecordedPlatform m_recorded;
    LinuxStatusBar m_statusBar;
    Platform m_platform;
};

} // namespace

std::variant<std::unique_ptr<HelperServices>, QString> HelperServices::fromEnvironment()
{
    const QString machinePath = qEnvironmentVariable("QUINDLE_MACHINE");
    if (machinePath.isEmpty())
        return std::make_unique<ThisComputer>(qEnvironmentVariable("QUINDLE_SYSFS"));
    const MachineResult result = readMachineFile(machinePath);
    if (const auto* refusal = std::get_if<MachineRefusal>(&result))
        return refusal->line;
    return std::make_unique<RecordedMachine>(std::get<Machine>(result));
}

} // namespace quindle
