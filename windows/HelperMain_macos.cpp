// The helper's entry point and composition root on a Mac. Its windows are in the same process: a status item
// needs the window server there in any case.

#include <cstdio>

#include <QApplication>

#include "app/HelperAppDelegate.h"
#include "app/HelperCommandLine.h"
#include "app/SampleKeeper.h"
#include "common/Paths.h"
#include "mac/QDMac.h"
#include "menubar/MainInterface.h"
#include "platform/Bundle.h"
#include "platform/macos/MacPlatform.h"
#include "platform/macos/MacTextReceiver.h"
#include "settings/ApplicationPreferences.h"
#include "widgets/AccessiblePopups.h"
#include "windows/HelperControllers.h"

using namespace quindle;

namespace {

constexpr int wrongUsage = 2;

int print(std::FILE* stream, const QByteArray& text, int status)
{
    std::fputs(text.constData(), stream);
    return status;
}

int run(QApplication& application)
{
    MacPlatform mac(MacPlatform::Program::Helper);
    const Platform platform = mac.services(mac.statusBar());
    MainInterface interface;
    ApplicationPreferences& settings = ApplicationPreferences::sharedInstance(&platform);
    HelperControllers controllers(
        platform, settings, interface,
        [](HelperAppDelegate& delegate) -> StatusBarTitle& { return delegate; },
        [] { return InstallationSource(); });
    HelperAppDelegate delegate(platform, settings, interface, &QDMac::init,
                               [&controllers](HelperAppDelegate& owner) { return controllers.make(owner); });
    MacTextReceiver recorder(mainApplicationProgram(platform.bundle.path()), {QStringLiteral("--record")});
    SampleKeeper samples(platform, delegate, recorder);
    QObject::connect(&application, &QCoreApplication::aboutToQuit,
                     &HelperAppDelegate::applicationWillTerminate);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &samples, &SampleKeeper::finish);
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}

int start(int argc, char** argv)
{
    exposePopups();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quindle-helper"));
    // The item stays when the last window closes.
    QApplication::setQuitOnLastWindowClosed(false);
    return run(application);
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
