// The entry point and composition root of the application.

#include <array>
#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>
#include <sysexits.h>
#include <unistd.h>
#include <utility>

#include <QApplication>
#include <QBuffer>
#include <QDBusConnection>
#include <QFile>

#include "application/ApplicationCommandLine.h"
#include "application/ApplicationProgram.h"
#include "application/ApplicationServices.h"
#include "application/OutputOfExport.h"
#include "application/commands/RecordCommand.h"
#include "common/Paths.h"
#include "platform/PowerHistory.h"
#include "platform/linux/notifications/LinuxPowerManagers.h"
#include "platform/linux/os/CoreDumps.h"
#include "platform/linux/os/StandardError.h"
#include "platform/linux/session/LinuxRunLoop.h"
#include "platform/linux/session/SingleInstance.h"
#include "platform/linux/session/StartDeadline.h"
#include "platform/linux/upower/UPowerHistory.h"
#include "platform/linux/windows/PortalWishes.h"
#include "platform/linux/windows/SettingsPortal.h"
#include "platform/linux/windows/ToolkitStart.h"
#include "platform/recorded/MachineFile.h"
#include "settings/ApplicationPreferences.h"
#include "widgets/AccessiblePopups.h"
#include "widgets/CloseKey.h"
#include "widgets/DesktopLook.h"
#include "widgets/WindowLanguage.h"

using namespace quindle;

namespace {

constexpr std::chrono::seconds patience(5);
// A toolkit that was just installed reads its plugins and fonts from a cold disk.
constexpr std::chrono::seconds patienceWithDisplay(15);

int fail(const QString& line, int status)
{
    printToStandardError("quindle: " + pathBytes(line));
    return status;
}

int print(const QByteArray& text)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    return std::fflush(stdout) == 0 ? EX_OK
                                    : fail(QStringLiteral("cannot write to standard output"), EX_IOERR);
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

/// The toolkit's application under the name of its desktop entry. Its arguments are not the toolkit's.
class ToolkitApplication
{
public:
    ToolkitApplication()
    {
        QApplication::setApplicationName(QStringLiteral("quindle"));
        QApplication::setApplicationDisplayName(QStringLiteral("Quindle"));
        QApplication::setDesktopFileName(QStringLiteral("quindle"));
        closeDialogsByKey();
        m_start.end();
        m_deadline.reset();
    }

private:
    std::array<char, 8> m_name{"quindle"};
    std::array<char*, 2> m_arguments{m_name.data(), nullptr};
    int m_count = 1;
    std::optional<StartDeadline> m_deadline{std::in_place, patienceWithDisplay, "the display does not answer",
                                            "quindle", EX_UNAVAILABLE};
    ToolkitStart m_start;
    QApplication m_application{m_count, m_arguments.data()};
};

std::unique_ptr<ApplicationServices> servicesOf(const std::optional<Machine>& machine)
{
    return machine ? ApplicationServices::ofMachine(*machine)
                   : ApplicationServices::ofThisComputer(pathText(qgetenv("QUINDLE_SYSFS")));
}

bool isThisComputer(const std::optional<Machine>& machine)
{
    return !machine && qEnvironmentVariableIsEmpty("QUINDLE_SYSFS");
}

StartAnswer answerInTime(std::optional<SingleInstance>& instance)
{
    const StartDeadline deadline(patience,
                                 "the session bus or a folder does not answer, so whether another one "
                                 "runs is not known",
                                 "quindle", EX_UNAVAILABLE);
    return instance.emplace(applicationInstance()).start();
}

int run(ApplicationServices& services, SingleInstance& instance, bool isThisComputer)
{
    const Platform platform = services.platform();
    // A desktop of this kind places windows itself.
    const bool isWayland = QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
    LinuxRunLoop runLoop; // that of a recorded computer is not for what the desktop says
    DesktopLook look(leavesColoursToPortal() ? DesktopLook::Colours::ByWishes
                                             : DesktopLook::Colours::OfToolkit);
    SettingsPortal portal(runLoop, [&look](const DesktopWishes& wishes) { look.follow(wishes); });
    portal.followSession();
    LinuxPowerManagers powerManagers;
    ApplicationProgram program(
        platform, ApplicationPreferences::sharedInstance(&platform), services.helperBundle(), !isWayland,
        {.powerManagers = &powerManagers, .registryAsItIs = services.registryAsItIs()});
    instance.setShowRequested([&program] { program.present(); });
    services.play(program.delegate());
    program.present();
    // The other services of this computer know nothing of one that was recorded.
    if (isThisComputer)
        program.takeOverFirstWeek(
            [] { return std::make_unique<UPowerHistory>(QDBusConnection::systemBus()); });
    return QApplication::exec();
}

int showWindow(const std::optional<Machine>& machine)
{
    if (!hasDisplay())
        return fail(QStringLiteral("there is no display to show a window on"), EX_UNAVAILABLE);
    exposePopups();
    const ToolkitApplication application;
    const WindowLanguage language(
        translationsOf(helperBundlePath(QCoreApplication::applicationDirPath() + QStringLiteral("/../.."))));
    std::optional<SingleInstance> instance;
    const StartAnswer answer = answerInTime(instance);
    if (answer.outcome != StartAnswer::Outcome::First)
        return answer.fault.isEmpty() ? EX_OK : fail(answer.fault, EX_UNAVAILABLE);
    const auto services = servicesOf(machine);
    return run(*services, *instance, isThisComputer(machine));
}

void report(const QString& line)
{
    fail(line, EX_OK);
}

/// Samples are handed over by another program; a person at a terminal has none to type.
int record(const Platform& platform, bool isThisComputer)
{
    QFile input;
    QBuffer nothing;
    const bool isGiven = ::isatty(STDIN_FILENO) == 0 && input.open(STDIN_FILENO, QIODevice::ReadOnly);
    nothing.open(QIODevice::ReadOnly);
    QIODevice& samples = isGiven ? static_cast<QIODevice&>(input) : nothing;
    // The other services of this computer know nothing of one that was recorded.
    if (!isThisComputer) {
        NoPowerHistory none;
        return recordHistory(platform, none, samples, &report);
    }
    UPowerHistory history(QDBusConnection::systemBus());
    return recordHistory(platform, history, samples, &report);
}

int runCommand(const ApplicationCommandLine& commandLine, const std::optional<Machine>& machine)
{
    int count = 1;
    std::array<char, 8> name{"quindle"};
    std::array<char*, 2> arguments{name.data(), nullptr};
    const QCoreApplication application(count, arguments.data());
    const auto services = servicesOf(machine);
    const Platform platform = services->platform();
    return commandLine.call == ApplicationCommandLine::Call::Record
               ? record(platform, isThisComputer(machine))
               : exportToStandardOutput(platform, commandLine, &report);
}

int start(const ApplicationCommandLine& commandLine)
{
    keepMemoryOutOfCoreDumps();
    const auto [machine, refusal] = machineNamed(pathText(qgetenv("QUINDLE_MACHINE")));
    if (!refusal.isEmpty())
        return fail(refusal, EX_DATAERR);
    return commandLine.call == ApplicationCommandLine::Call::Window ? showWindow(machine)
                                                                    : runCommand(commandLine, machine);
}

} // namespace

int main(int argc, char** argv)
{
    // Before the first line is printed.
    neverWaitForStandardError();
    const ApplicationCommandLine commandLine = parseApplicationCommandLine(argumentTexts(argc, argv));
    if (!commandLine.fault.isEmpty())
        return fail(commandLine.fault + QStringLiteral(" (see --help)"), EX_USAGE);
    switch (commandLine.call) {
    case ApplicationCommandLine::Call::Help:
        return print(applicationHelpText().toUtf8());
    case ApplicationCommandLine::Call::Version:
        return print("quindle " QUINDLE_VERSION "\n");
    default:
        return start(commandLine);
    }
}
