// The helper's entry point and composition root.

#include <cstdio>
#include <memory>
#include <optional>
#include <variant>

#include <QApplication>

#include "app/ApplicationPreferences.h"
#include "app/HelperAppDelegate.h"
#include "app/HelperServices.h"
#include "app/OlderSettings.h"
#include "mac/QDMac.h"
#include "menubar/BatteryPopup.h"
#include "menubar/MainInterface.h"
#include "platform/Bundle.h"
#include "platform/linux/LinuxInstallationSource.h"
#include "platform/linux/SingleInstance.h"
#include "platform/recorded/MachineFile.h"
#include "preferences/PreferencesWindows.h"

using namespace quindle;

namespace {

int fail(const QString& line, int status)
{
    std::fprintf(stderr, "quindle-helper: %s\n", line.toUtf8().constData());
    return status;
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

int run(QApplication& application, HelperServices& services, SingleInstance& instance)
{
    const Platform platform = services.platform();
    copyTextParkedByOlderHelper(platform.userDefaults);
    MainInterface interface;
    BatteryPopup popup(interface, platform.application, platform.runLoop);
    ApplicationPreferences& settings = ApplicationPreferences::sharedInstance(&platform);
    PreferencesWindows preferences(platform, settings);
    HelperAppDelegate delegate(platform, settings, interface, preferences, &QDMac::init);
    preferences.setSources(
        {.delegate = delegate,
         .dailyUploadText = [&delegate] { return delegate.dailyUploadText(); },
         .installationSource = [&platform] { return installationSource(platform.bundle.path()); }});
    QObject::connect(&delegate, &HelperAppDelegate::statusItemRefreshed, &delegate,
                     [&preferences] { preferences.refresh(); });
    QObject::connect(&application, &QCoreApplication::aboutToQuit,
                     &HelperAppDelegate::applicationWillTerminate);
    instance.setShowRequested([&interface] { interface.statusMenu().openView(); });
    delegate.applicationDidFinishLaunching();
    services.play(delegate);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    std::optional<Machine> machine;
    if (const QString path = qEnvironmentVariable("QUINDLE_MACHINE"); !path.isEmpty()) {
        MachineResult result = readMachineFile(path);
        if (const auto* refusal = std::get_if<MachineRefusal>(&result))
            return fail(refusal->line, 2);
        machine = std::get<Machine>(std::move(result));
    }
    if (!hasDisplay())
        return fail(QStringLiteral("there is no display to show a tray item on"), 1);

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quindle-helper"));
    QApplication::setDesktopFileName(QStringLiteral("quindle-helper"));
    QApplication::setQuitOnLastWindowClosed(false);

    SingleInstance instance(instanceFolder(), instanceName());
    while (!instance.acquire())
        if (instance.askFirstToShow())
            return 0;
    const auto services = machine ? HelperServices::ofMachine(*machine)
                                  : HelperServices::ofThisComputer(qEnvironmentVariable("QUINDLE_SYSFS"));
    return run(application, *services, instance);
}
