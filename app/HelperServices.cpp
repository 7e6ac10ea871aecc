#include "app/HelperServices.h"

#include <QCoreApplication>

#include "app/MachineServices.h"
#include "app/MachineSteps.h"
#include "platform/UserDefaults.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/network/LinuxUrlSession.h"
#include "platform/linux/os/StandardError.h"
#include "platform/linux/session/LinuxApplication.h"
#include "platform/linux/session/LinuxRunLoop.h"
#include "platform/linux/statusitem/LinuxStatusItem.h"
#include "platform/linux/system/LinuxBundle.h"
#include "platform/linux/system/LinuxWorkspace.h"
#include "platform/recorded/RecordedPlatform.h"
#include "plist/PropertyList.h"
#include "settings/SettingsTable.h"

namespace quindle {

namespace {

QString windowsProgramOf(const Bundle& programBundle)
{
    return programInBundle(programBundle.path(), QStringLiteral("quindle-windows"));
}

/// The tray around the item. The user's own choice of its form is asked for each time it is shown anew.
StatusItemSurroundings surroundings(const Bundle& programBundle, UserDefaultsDatabases& databases)
{
    return {.resourcesDirectory = programBundle.resourcesPath(),
            .currentDesktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP"),
            .presentationChoice =
                [&databases] {
                    return databases.standard().object(Keys::statusItemPresentation.name()).toString();
                },
            .trayProgram = windowsProgramOf(programBundle),
            .displayReset =
                [] {
                    printToStandardError("quindle-helper: the display has gone");
                    QCoreApplication::quit();
                }};
}

class ThisComputer : public HelperServices
{
public:
    explicit ThisComputer(const QString& systemRoot)
        : m_isOther(!systemRoot.isEmpty())
        , m_linux(systemRoot)
        , m_statusBar(m_linux.runLoop(), surroundings(m_linux.bundle(), m_linux.userDefaults()))
    {
        m_linux.restWhileNothingChanges([this] { return !m_statusBar.looksForTray(); });
    }

    Platform platform() override { return m_linux.services(m_statusBar); }

    void play(HelperAppDelegate& /*delegate*/) override {}
    QString windowsProgram() const override { return windowsProgramOf(m_linux.bundle()); }
    QString recordingProgram() const override
    {
        // Another tree than /sys is another computer, whose history does not belong in this one's.
        return m_isOther ? QString() : mainApplicationProgram(m_linux.bundle().path());
    }
    bool mayRunCommands() const override { return true; }
    QByteArray memory() const override { return m_linux.powerMemory(); }
    quint32 statesEntered() const override { return 0; }
    void store(const QString& /*database*/, const QByteArray& /*values*/) override {}

private:
    bool m_isOther;
    LinuxPlatform m_linux;
    LinuxStatusBar m_statusBar;
};

class RecordedMachine : public HelperServices
{
public:
    explicit RecordedMachine(const Machine& machine)
        : m_steps(machine.steps)
        , m_recorded(machine.keys, m_programBundle, machine.file)
        , m_network(networkModule(m_programBundle))
        , m_urlSession(m_recorded.computer, m_recorded.urlSession, m_network)
        , m_statusBar(m_runLoop, surroundings(m_programBundle, m_recorded.userDefaults))
        , m_platform(platform())
    {
    }

    Platform platform() override
    {
        // One that names no bundle stands in for this computer, and its application is installed here.
        return m_recorded.platform().with({.workspace = m_recorded.computer.bundle() ? nullptr : &m_workspace,
                                           .runLoop = &m_runLoop,
                                           .statusBar = &m_statusBar,
                                           .application = &m_application,
                                           .urlSession = &m_urlSession});
    }

    void play(HelperAppDelegate& delegate) override
    {
        playStepsInTime(m_steps, m_recorded, m_platform, delegate,
                        [this](std::size_t steps) { m_entered = static_cast<quint32>(steps); });
    }

    QString windowsProgram() const override { return windowsProgramOf(m_programBundle); }

    QString recordingProgram() const override
    {
        return isHistoryKeptOf(m_recorded.computer) ? mainApplicationProgram(m_programBundle.path())
                                                    : QString();
    }

    bool mayRunCommands() const override { return false; }

    QByteArray memory() const override
    {
        QVariantMap databases;
        for (const QString& name : {QStringLiteral("standard"), groupDatabaseName()})
            databases.insert(name, m_recorded.computer.database(name));
        return xmlPropertyList(databases);
    }

    quint32 statesEntered() const override { return m_entered; }

    void store(const QString& database, const QByteArray& values) override
    {
        const QVariantMap stored = propertyListFromBytes(values).value_or(QVariant()).toMap();
        for (auto value = stored.begin(); value != stored.end(); ++value)
            m_recorded.computer.setInDatabase(database, value.key(), value.value());
    }

private:
    std::vector<MachineStep> m_steps;
    LinuxBundle m_programBundle;
    LinuxRunLoop m_runLoop;
    LinuxApplication m_application;
    LinuxWorkspace m_workspace;
    RecordedPlatform m_recorded;
    LinuxUrlSession m_network;
    MachineUrlSession m_urlSession;
    LinuxStatusBar m_statusBar;
    Platform m_platform;
    quint32 m_entered = 0;
};

} // namespace

std::unique_ptr<HelperServices> HelperServices::ofThisComputer(const QString& systemRoot)
{
    return std::make_unique<ThisComputer>(systemRoot);
}

std::unique_ptr<HelperServices> HelperServices::ofMachine(const Machine& machine)
{
    return std::make_unique<RecordedMachine>(machine);
}

} // namespace quindle
