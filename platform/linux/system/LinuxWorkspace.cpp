#include "platform/linux/system/LinuxWorkspace.h"

#include <filesystem>

#include <QLoggingCategory>

#include "common/Paths.h"
#include "platform/linux/os/DetachedProcess.h"
#include "platform/posix/ProgramFile.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(workspaceLog, "quindle.workspace")

/// The command that has the desktop open `path`; none where no handler is installed.
QList<QByteArray> openCommand(const QByteArray& path, const QStringList& handlerFolders)
{
    if (const QByteArray xdgOpen = programPath("xdg-open", handlerFolders); !xdgOpen.isEmpty())
        return {xdgOpen, path};
    const QByteArray gio = programPath("gio", handlerFolders);
    return gio.isEmpty() ? QList<QByteArray>() : QList<QByteArray>{gio, "open", path};
}

/// The program of the application that is installed in a folder; empty where none is.
QByteArray applicationIn(const QByteArray& folder)
{
    return programPath(folder + "/Quindle.app/Contents/Linux/quindle", {});
}

/// What launches `path`: a program itself, a folder's application, or else the desktop's handler.
QList<QByteArray> launchCommand(const QByteArray& path, const QStringList& handlerFolders)
{
    if (!programPath(path, {}).isEmpty())
        return {path};
    const QByteArray application = applicationIn(path);
    return application.isEmpty() ? openCommand(path, handlerFolders) : QList<QByteArray>{application};
}

} // namespace

LinuxWorkspace::LinuxWorkspace(QStringList handlerFolders)
    : m_handlerFolders(std::move(handlerFolders))
{
}

void LinuxWorkspace::launchApplication(const QString& path)
{
    if (launch(path)) {
        // A path that worked may fail again, which is news.
        m_failed.remove(path);
        return;
    }
    if (m_failed.contains(path))
        return;
    m_failed.insert(path);
    qCWarning(workspaceLog, "cannot launch %ls", qUtf16Printable(path));
}

bool LinuxWorkspace::launch(const QString& path) const
{
    std::error_code error;
    const auto target = std::filesystem::absolute(pathBytes(path).toStdString(), error);
    if (path.isEmpty() || error || !std::filesystem::exists(target, error))
        return false;
    const QList<QByteArray> command = launchCommand(QByteArray::fromStdString(target), m_handlerFolders);
    return !command.isEmpty() && startDetached(command);
}

} // namespace quindle
