// The helper's entry point and composition root on a Mac. Its windows are in the same process: a status item
// needs the window server there in any case.

#include <cstdio>
#include <optional>

#include <QApplication>

#include "app/HelperAppDelegate.h"
#include "app/HelperCommandLine.h"
#include "app/SampleKeeper.h"
#include "app/StoredUnits.h"
#include "app/WarningKeeper.h"
#include "common/Paths.h"
#include "mac/QDMac.h"
#include "menubar/MainInterface.h"
#include "platform/macos/MacCalls.h"
#include "platform/macos/MacCommandRunner.h"
#include "platform/macos/MacNotifier.h"
#include "platform/macos/MacTextReceiver.h"
#include "platform/recorded/MachineFile.h"
#include "settings/ApplicationPreferences.h"
#include "widgets/AccessiblePopups.h"
#include "widgets/CloseKey.h"
#include "widgets/WindowLanguage.h"
#include "windows/HelperComputer_macos.h"
#include "windows/HelperControllers.h"

using namespace quindle;

namespace {

constexpr int wrongUsage = 2;

int print(std::FILE* stream, const QByteArray& text, int status)
{
    std::fputs(text.constData(), stream);
    return status;
}

int run(QApplication& application, HelperComputer& computer)
{
    const Platform platform = computer.platform();
    MainInterface interface;
    ApplicationPreferences& settings = ApplicationPreferences::sharedInstance(&platform);
    HelperControllers controllers(
        platform, settings, interface,
        [](HelperAppDelegate& delegate) -> StatusBarTitle& { return delegate; },
        [] { return InstallationSource(); });
    HelperAppDelegate delegate(platform, settings, interface, &QDMac::init,
                               [&controllers](HelperAppDelegate& owner) { return controllers.make(owner); });
    followStoredUnits(platform, delegate);
    MacTextReceiver recorder(computer.recordingProgram(), {QStringLiteral("--record")});
    SampleKeeper samples(platform, delegate, recorder);
    const auto notices = systemNotices();
    MacNotifier notifier(*notices);
    MacPowerManagers powerManagers;
    MacCommandRunner commands;
    // A machine file may be somebody else's, and so would be the commands in it.
    const WarningKeeper warnings(platform, delegate,
                                 {notifier, powerManagers, computer.mayRunCommands() ? &commands : nullptr});
    QObject::connect(&application, &QCoreApplication::aboutToQuit,
                     &HelperAppDelegate::applicationWillTerminate);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &samples, &SampleKeeper::finish);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &application,
                     [&notifier] { notifier.withdraw(); });
    delegate.applicationDidFinishLaunching();
    computer.play(delegate);
    return QApplication::exec();
}

int start(int argc, char** argv)
{
    const auto [machine, refusal] = machineNamed(pathText(qgetenv("QUINDLE_MACHINE")));
    if (!refusal.isEmpty())
        return print(stderr, "quindle-helper: " + pathBytes(refusal) + '\n', wrongUsage);
    exposePopups();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quindle-helper"));
    // The item stays when the last window closes.
    QApplication::setQuitOnLastWindowClosed(false);
    closeDialogsByKey();
    const WindowLanguage language(
        translationsOf(QCoreApplication::applicationDirPath() + QStringLiteral("/../..")));
    const auto computer = machine ? machineOnMac(*machine) : thisMac();
    return run(application, *computer);
}

} // namespace

int main(int argc, char** argv)
{
    const HelperCommandLine commandLine = parseHelperCommandLine(argumentTexts(argc, argv));
    if (!commandLine.fault.isEmpty())
        return print(stderr, "quindle-helper: " + commandLine.fault.toUtf8() + " (see --help)\n", wrongUsage);
    switch (commandLine.call) {
    case HelperCommandLine::Call::Help:
        return print(stdout, helperHelpText().toUtf8(), 0);
    case HelperCommandLine::Call::Version:
        return print(stdout, "quindle-helper " QUINDLE_VERSION "\n", 0);
    case HelperCommandLine::Call::Run:
        break;
    }
    return start(argc, argv);
}
