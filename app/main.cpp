// The helper's entry point and composition root.

#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>

#include <QCoreApplication>

#include "app/HelperAppDelegate.h"
#include "app/HelperCommandLine.h"
#include "app/HelperServices.h"
#include "app/OlderSettings.h"
#include "app/RemoteControllers.h"
#include "app/SampleKeeper.h"
#include "app/SharedNotifications.h"
#include "app/StoredUnits.h"
#include "app/WarningKeeper.h"
#include "common/Paths.h"
#include "common/ShownLanguage.h"
#include "mac/QDMac.h"
#include "menubar/MainInterface.h"
#include "platform/UserDefaults.h"
#include "platform/linux/display/DisplayEnd.h"
#include "platform/linux/display/X11Desktop.h"
#include "platform/linux/display/X11Display.h"
#include "platform/linux/link/LinuxCommandRunner.h"
#include "platform/linux/link/LinuxProgramStarter.h"
#include "platform/linux/link/LinuxTextReceiver.h"
#include "platform/linux/notifications/LinuxNotifier.h"
#include "platform/linux/notifications/LinuxPowerManagers.h"
#include "platform/linux/os/CoreDumps.h"
#include "platform/linux/os/EndSignals.h"
#include "platform/linux/os/MonotonicClock.h"
#include "platform/linux/os/StandardError.h"
#include "platform/linux/session/ActivationToken.h"
#include "platform/linux/session/SingleInstance.h"
#include "platform/linux/session/StartDeadline.h"
#include "platform/recorded/MachineFile.h"
#include "remote/WindowsProcess.h"
#include "settings/ApplicationPreferences.h"

using namespace quindle;

namespace {

constexpr int cannotRun = 1;
constexpr int wrongUsage = 2;
constexpr std::chrono::seconds patience(5);
constexpr std::chrono::seconds patienceWithDisplay(1);
constexpr std::chrono::seconds patienceAtEnd(2);

int fail(const QString& line, int status)
{
    printToStandardError("quindle-helper: " + pathBytes(line));
    return status;
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

/// A home on a server that is away would keep the first read waiting without end.
void readSettingsInTime(UserDefaultsDatabases& databases)
{
    const StartDeadline deadline(patience, "the folder of the settings does not answer");
    databases.standard().dictionaryRepresentation();
    if (UserDefaults* shared = databases.suite(groupDatabaseName()))
        shared->dictionaryRepresentation();
}

RequestSurroundings surroundingsOf(const HelperServices& services, X11Display& display)
{
    return {.pointer = [&display] { return pointerPosition(display); },
            .activationToken = takeActivationToken,
            .statesEntered = [&services] { return services.statesEntered(); },
            .memory = [&services] { return services.memory(); }};
}

int run(QCoreApplication& application, HelperServices& services, SingleInstance& instance)
{
    const Platform computer = services.platform();
    SharedNotifications notifications(computer.distributedNotificationCenter);
    const Platform platform = computer.with({.distributedNotificationCenter = &notifications});
    readSettingsInTime(platform.userDefaults);
    // Before anything reads the settings.
    copyTextParkedByOlderHelper(platform.userDefaults);
    MainInterface interface;
    ApplicationPreferences& settings = ApplicationPreferences::sharedInstance(&platform);
    LinuxProgramStarter starter(pathBytes(services.windowsProgram()));
    WindowsProcess windows(starter, timeSinceBoot);
    X11Display display;
    RemoteControllers controllers(platform, interface, windows, notifications,
                                  surroundingsOf(services, display));
    controllers.setStore(
        [&services](const QString& database, const QByteArray& values) { services.store(database, values); });
    HelperAppDelegate delegate(platform, settings, interface, &QDMac::init,
                               [&controllers](HelperAppDelegate& owner) { return controllers.make(owner); });
    followStoredUnits(platform, delegate);
    LinuxTextReceiver recorder({pathBytes(services.recordingProgram()), "--record"});
    SampleKeeper samples(platform, delegate, recorder);
    LinuxNotifier notifier;
    LinuxPowerManagers powerManagers;
    LinuxCommandRunner commands;
    const WarningKeeper warnings(platform, delegate,
                                 {notifier, powerManagers, services.mayRunCommands() ? &commands : nullptr});
    QObject::connect(&application, &QCoreApplication::aboutToQuit,
                     &HelperAppDelegate::applicationWillTerminate);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &samples, &SampleKeeper::finish);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &notifier, &LinuxNotifier::finish);
    instance.setTakenByAnother([&application] {
        fail(QStringLiteral("another helper is on the session bus that has come up"), 0);
        application.quit();
    });
    // Nothing else would end a program without windows together with its desktop.
    const DisplayEnd displayEnd(displaySocketOfProcess(), patienceWithDisplay, [&application] {
        fail(QStringLiteral("the display has gone"), 0);
        application.quit();
    });
    instance.setShowRequested([&interface] { interface.statusMenu().openView(); });
    // The requests of other starts come in only once the loop runs, so nothing is shown half made.
    delegate.applicationDidFinishLaunching();
    services.play(delegate);
    return QCoreApplication::exec();
}

int print(const QByteArray& text)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    return std::fflush(stdout) == 0 ? 0 : fail(QStringLiteral("cannot write to standard output"), wrongUsage);
}

StartAnswer answerInTime(std::optional<SingleInstance>& instance)
{
    const StartDeadline deadline(patience,
                                 "the session bus or a folder does not answer, so whether another one "
                                 "runs is not known");
    return instance.emplace(helperInstance()).start();
}

int start(int argc, char** argv)
{
    keepMemoryOutOfCoreDumps();
    const auto [machine, refusal] = machineNamed(pathText(qgetenv("QUINDLE_MACHINE")));
    if (!refusal.isEmpty())
        return fail(refusal, wrongUsage);
    if (!hasDisplay())
        return fail(QStringLiteral("there is no display to show a tray item on"), cannotRun);

    // No windows and no display: the session management that a program with them takes part in does not know
    // it, so the login item alone decides whether it starts at login.
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quindle-helper"));
    const ShownLanguage language(
        translationsOf(QCoreApplication::applicationDirPath() + QStringLiteral("/../..")));
    // The end hands over what is to be recorded, also at the end of a session.
    const EndSignals endSignals(patienceAtEnd, [&application] { application.quit(); });

    std::optional<SingleInstance> instance;
    const StartAnswer answer = answerInTime(instance);
    if (answer.outcome != StartAnswer::Outcome::First)
        return answer.fault.isEmpty() ? 0 : fail(answer.fault, cannotRun);
    const auto services = machine ? HelperServices::ofMachine(*machine)
                                  : HelperServices::ofThisComputer(pathText(qgetenv("QUINDLE_SYSFS")));
    return run(application, *services, *instance);
}

} // namespace

int main(int argc, char** argv)
{
    // Before the first line is printed.
    neverWaitForStandardError();
    const HelperCommandLine commandLine = parseHelperCommandLine(argumentTexts(argc, argv));
    if (!commandLine.fault.isEmpty())
        return fail(commandLine.fault + QStringLiteral(" (see --help)"), wrongUsage);
    switch (commandLine.call) {
    case HelperCommandLine::Call::Help:
        return print(helperHelpText().toUtf8());
    case HelperCommandLine::Call::Version:
        return print("quindle-helper " QUINDLE_VERSION "\n");
    case HelperCommandLine::Call::Run:
        break;
    }
    return start(argc, argv);
}
