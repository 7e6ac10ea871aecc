#include "platform/linux/LinuxWorkspace.h"

#include <QFileInfo>
#include <QLoggingCategory>
#include <QProcess>
#include <QStandardPaths>

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(workspaceLog, "quindle.workspace")

struct Command
{
    QString program;
    QStringList arguments;
};

/// The command that has the desktop open `path`; its program is empty where no handler is installed.
Command openCommand(const QString& path, const QStringList& handlerFolders)
{
    const QString xdgOpen = QStandardPaths::findExecutable(QStringLiteral("xdg-open"), handlerFolders);
    if (!xdgOpen.isEmpty())
        return {xdgOpen, {path}};
    return {QStandardPaths::findExecutable(QStringLiteral("gio"), handlerFolders),
            {QStringLiteral("open"), path}};
}

} // namespace

LinuxWorkspace::LinuxWorkspace(QStringList handlerFolders)
    : m_handlerFolders(std::move(handlerFolders))
{
}

void LinuxWorkspace::launchApplication(const QString& path)
{
    if (launch(path)) {
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
    const QFileInfo target(path);
    if (path.isEmpty() || !target.exists())
        return false;
    const QString absolutePath = target.absoluteFilePath();
    const Command command = target.isFile() && target.isExecutable()
                                ? Command{absolutePath, {}}
                                : openCommand(absolutePath, m_handlerFolders);
    // Started detached it is not this process's child, so none has to be waited for.
    return !command.program.isEmpty() && QProcess::startDetached(command.program, command.arguments);
}

} // namespace quindle
