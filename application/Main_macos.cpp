// The entry point and composition root of the application on a Mac, where the system itself keeps one of a
// kind.

#include <cstdio>
#include <sysexits.h>
#include <unistd.h>

#include <QApplication>
#include <QFile>

#include "app/SilentServices.h"
#include "application/ApplicationCommandLine.h"
#include "application/ApplicationProgram.h"
#include "application/OutputOfExport.h"
#include "application/commands/RecordCommand.h"
#include "common/Paths.h"
#include "platform/PowerHistory.h"
#include "platform/macos/MacCalls.h"
#include "platform/macos/MacPlatform.h"
#include "settings/ApplicationPreferences.h"
#include "widgets/AccessiblePopups.h"

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

/// Models are looked up, and snapshots sent, by the helper alone.
struct ApplicationOnMac
{
    Platform platform() { return mac.services(statusBar).with({.urlSession = &urlSession}); }

    MacPlatform mac{MacPlatform::Program::Application};
    SilentStatusBar statusBar;
    SilentUrlSession urlSession;
};

int showWindow(int argc, char** argv)
{
    exposePopups();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quindle"));
    QApplication::setApplicationDisplayName(QStringLiteral("Quindle"));
    ApplicationOnMac own;
    const Platform platform = own.platform();
    const auto helperBundle = bundleAt(helperBundlePath(platform.bundle.path()));
    ApplicationProgram program(platform, ApplicationPreferences::sharedInstance(&platform), *helperBundle,
                               true);
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

int runCommand(int argc, char** argv, const ApplicationCommandLine& commandLine)
{
    const QCoreApplication application(argc, argv);
    ApplicationOnMac own;
    const Platform platform = own.platform();
    return commandLine.call == ApplicationCommandLine::Call::Record
               ? record(platform)
               : exportToStandardOutput(platform, commandLine, &report);
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
    case ApplicationCommandLine::Call::Window:
        return showWindow(argc, argv);
    default:
        return runCommand(argc, argv, commandLine);
    }
}
