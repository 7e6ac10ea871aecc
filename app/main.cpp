// The helper's entry point and composition root.

#include <cstdio>
#include <variant>

#include <QApplication>

#include "app/ApplicationPreferences.h"
#include "app/HelperAppDelegate.h"
#include "app/HelperServices.h"
#include "mac/QDMac.h"
#include "menubar/BatteryPopup.h"
#include "menubar/MainInterface.h"
#include "platform/linux/SingleInstance.h"
#include "preferences/PreferencesWindow.h"

using namespace quindle;

namespace {

int fail(const QString& line, int status)
{
    std::fprintf(stderr, "quindle-helper: %s\n", line.toUtf8().constData());
    return status;
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
           || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

int run(QApplication& application, HelperServices& services, SingleInstance& instance)
{
    const Platform platform = services.platform();
    MainInterface interface;
    BatteryPopup popup(interface);
    PreferencesWindow preferencesWindow;
    HelperAppDelegate delegate(platform, ApplicationPreferences::sharedInstance(&platform), interface,
                               preferencesWindow, &QDMac::init);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &HelperAppDelegate::applicationWillTerminate);
    instance.setShowRequested([&interface] { interface.statusMenu().openView(); });
    delegate.applicationDidFinishLaunching();
    services.play(delegate);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    if (!hasDisplay())
        return fail(QStringLiteral("there is no display to show a tray item on"), 1);
    SingleInstance instance;
    if (!instance.acquire())
        return instance.askFirstToShow() ? 0 : fail(QStringLiteral("another one runs and does not answer"), 1);

    auto services = HelperServices::fromEnvironment();
    if (const auto* refusal = std::get_if<QString>(&services))
        return fail(*refusal, 2);

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quindle-helper"));
    QApplication::setApplicationDisplayName(QStringLiteral("Quindle Helper"));
    QApplication::setDesktopFileName(QStringLiteral("quindle-helper"));
    QApplication::setQuitOnLastWindowClosed(false);
    return run(application, *std::get<std::unique_ptr<HelperServices>>(services), instance);
}
