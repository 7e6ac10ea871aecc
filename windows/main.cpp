// The entry point and composition root of the program that has the helper's windows.

#include <array>
#include <chrono>
#include <memory>
#include <optional>

#include <QApplication>
#include <QIcon>
#include <QSessionManager>

#include "common/Paths.h"
#include "platform/linux/link/SocketLink.h"
#include "platform/linux/os/CoreDumps.h"
#include "platform/linux/os/StandardError.h"
#include "platform/linux/session/LinuxRunLoop.h"
#include "platform/linux/windows/PortalWishes.h"
#include "platform/linux/windows/SettingsPortal.h"
#include "platform/linux/windows/ToolkitStart.h"
#include "platform/recorded/MachineFile.h"
#include "remote/WindowMessage.h"
#include "widgets/AccessiblePopups.h"
#include "widgets/CloseKey.h"
#include "widgets/DesktopLook.h"
#include "widgets/WindowLanguage.h"
#include "windows/HelperEnd.h"
#include "windows/WindowWatch.h"
#include "windows/WindowsCommandLine.h"
#include "windows/WindowsProgram.h"
#include "windows/WindowsServices.h"
#include "windows/tray/TrayProcess.h"

using namespace quindle;

namespace {

constexpr int wrongUsage = 2;

int fail(const QString& line)
{
    printToStandardError("quindle-windows: " + pathBytes(line));
    return wrongUsage;
}

/// The windows come with the helper. A session manager that restarts what ran when the session ended would
/// start them without one.
void leaveStartToHelper(const QApplication& application)
{
    QObject::connect(&application, &QGuiApplication::saveStateRequest, &application,
                     [](QSessionManager& manager) { manager.setRestartHint(QSessionManager::RestartNever); });
}

/// The toolkit's application under the name by which desktops find the helper's entry: all windows belong to
/// it.
class HelpersApplication
{
public:
    HelpersApplication()
    {
        QApplication::setApplicationName(QStringLiteral("quindle-helper"));
        QApplication::setDesktopFileName(QStringLiteral("quindle-helper"));
        // The helper says when to end.
        QApplication::setQuitOnLastWindowClosed(false);
        leaveStartToHelper(m_application);
        m_start.end();
    }

private:
    std::array<char, 15> m_name{"quindle-helper"};
    std::array<char*, 2> m_arguments{m_name.data(), nullptr};
    int m_count = 1;
    ToolkitStart m_start;
    QApplication m_application{m_count, m_arguments.data()};
};

QString translationsOfBundle()
{
    return translationsOf(QCoreApplication::applicationDirPath() + QStringLiteral("/../.."));
}

/// Windows look as the desktop's settings portal says, for as long as this exists.
class FollowedLook
{
public:
    FollowedLook() { m_portal.followSession(); }

private:
    LinuxRunLoop m_runLoop; // the helper's is not for what the desktop says
    DesktopLook m_look{leavesColoursToPortal() ? DesktopLook::Colours::ByWishes
                                               : DesktopLook::Colours::OfToolkit};
    SettingsPortal m_portal{m_runLoop, [this](const DesktopWishes& wishes) { m_look.follow(wishes); }};
};

std::unique_ptr<WindowsServices> servicesOf(const std::optional<Machine>& machine, HelperEnd& helper)
{
    return machine ? WindowsServices::ofMachine(*machine, helper)
                   : WindowsServices::ofThisComputer(pathText(qgetenv("QUINDLE_SYSFS")), helper);
}

int run(SocketLink& link, const std::optional<Machine>& machine, std::chrono::milliseconds patience)
{
    HelperEnd helper(link);
    const auto services = servicesOf(machine, helper);
    const FollowedLook look;
    std::optional<WindowsProgram> program;
    const auto receive = [&](const WindowMessage& message) {
        // The models are made with the first request, which says what they begin with.
        if (!program && isRequest(message.kind)) {
            services->begin(message);
            program.emplace(*services, helper);
        }
        if (program)
            program->handle(message);
    };
    link.setReceiver([&receive](const QByteArray& bytes) {
        if (const auto message = decoded(bytes))
            receive(*message);
    });
    // The windows never outlive the helper.
    link.setClosed(&QCoreApplication::quit);
    const WindowWatch watch(patience, [&program] {
        if (program)
            program->sendIdle();
    });
    return QApplication::exec();
}

int start(const WindowsCommandLine& commandLine)
{
    keepMemoryOutOfCoreDumps();
    if (commandLine.holdsTray) {
        const HelpersApplication application;
        const WindowLanguage language(translationsOfBundle());
        const FollowedLook look;
        runTrayProcess();
    }
    FileDescriptor end(commandLine.link);
    if (!SocketLink::isEndOfPair(end))
        return fail(QStringLiteral("is started by quindle-helper"));
    const auto [machine, refusal] = machineNamed(pathText(qgetenv("QUINDLE_MACHINE")));
    if (!refusal.isEmpty())
        return fail(refusal);
    exposePopups();
    const HelpersApplication application;
    // Window managers of X11 do not look for the desktop entry's icon.
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("quindle-helper")));
    closeDialogsByKey();
    const WindowLanguage language(translationsOfBundle());
    SocketLink link(std::move(end));
    return run(link, machine, commandLine.patience);
}

} // namespace

int main(int argc, char** argv)
{
    // Before the first line is printed.
    neverWaitForStandardError();
    const auto commandLine = parseWindowsCommandLine(argumentTexts(argc, argv));
    return commandLine ? start(*commandLine) : fail(QStringLiteral("is started by quindle-helper"));
}
