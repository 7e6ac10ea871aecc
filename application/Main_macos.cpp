// The entry point and composition root of the application on a Mac, where the system itself sees to it that
// only one runs.

#include <cstdio>
#include <memory>
#include <optional>
#include <sysexits.h>
#include <unistd.h>

#include <QApplication>
#include <QFile>

#include "application/ApplicationCommandLine.h"
#include "application/ApplicationProgram.h"
#include "application/ApplicationServices.h"
#include "application/OutputOfExport.h"
#include "application/commands/RecordCommand.h"
#include "common/Paths.h"
#include "platform/PowerHistory.h"
#include "platform/macos/MacNotifier.h"
#include "platform/recorded/MachineFile.h"
#include "settings/ApplicationPreferences.h"
#include "widgets/AccessiblePopups.h"
#include "widgets/CloseKey.h"
#include "widgets/WindowLanguage.h"

using namespace quindle;

namespace {

int fail(const QString& line, int status)
{
    std::fprintf(stderr, "quindle: %s\n", pathBytes(line).constData());
    return status;
}

int print(const QByteArray& text)
{
    std::fputs(text.constData(), stdout);
    return EX_OK;
}

void report(const QString& line)
{
    fail(line, EX_OK);
}

std::unique_ptr<ApplicationServices> servicesOf(const std::optional<Machine>& machine)
{
    return machine ? ApplicationServices::ofMachine(*machine) : ApplicationServices::ofThisComputer({});
}

int showWindow(int argc, char** argv, const std::optional<Machine>& machine)
{
    exposePopups();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quindle"));
    QApplication::setApplicationDisplayName(QStringLiteral("Quindle"));
    closeDialogsByKey();
    const WindowLanguage language(
        translationsOf(helperBundlePath(QCoreApplication::applicationDirPath() + QStringLiteral("/../.."))));
    const auto services = servicesOf(machine);
    const Platform platform = services->platform();
    MacPowerManagers powerManagers;
    ApplicationProgram program(
        platform, ApplicationPreferences::sharedInstance(&platform), services->helperBundle(), true,
        {.powerManagers = &powerManagers, .registryAsItIs = services->registryAsItIs()});
    services->play(program.delegate());
    program.present();
    return QApplication::exec();
}

/// Samples are handed over by another program; a person at a terminal has none to type.
int record(const Platform& platform)
{
    QFile samples;
    const bool isGiven = ::isatty(STDIN_FILENO) == 0 && samples.open(STDIN_FILENO, QIODevice::ReadOnly);
    NoPowerHistory none;
    return isGiven ? recordHistory(platform, none, samples, &report) : EX_OK;
}

int runCommand(int argc, char** argv, const ApplicationCommandLine& commandLine,
               const std::optional<Machine>& machine)
{
    const QCoreApplication application(argc, argv);
    const auto services = servicesOf(machine);
    const Platform platform = services->platform();
    return commandLine.call == ApplicationCommandLine::Call::Record
               ? record(platform)
               : exportToStandardOutput(platform, commandLine, &report);
}

int start(int argc, char** argv, const ApplicationCommandLine& commandLine)
{
    const auto [machine, refusal] = machineNamed(pathText(qgetenv("QUINDLE_MACHINE")));
    if (!refusal.isEmpty())
        return fail(refusal, EX_DATAERR);
    return commandLine.call == ApplicationCommandLine::Call::Window
               ? showWindow(argc, argv, machine)
               : runCommand(argc, argv, commandLine, machine);
}

} // namespace

int main(int argc, char** argv)
{
    const ApplicationCommandLine commandLine = parseApplicationCommandLine(argumentTexts(argc, argv));
    if (!commandLine.fault.isEmpty())
        return fail(commandLine.fault + QStringLiteral(" (see --help)"), EX_USAGE);
    switch (commandLine.call) {
    case ApplicationCommandLine::Call::Help:
        return print(applicationHelpText().toUtf8());
    case ApplicationCommandLine::Call::Version:
        return print("quindle " QUINDLE_VERSION "\n");
    default:
        return start(argc, argv, commandLine);
    }
}
