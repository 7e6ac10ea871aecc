#include "platform/linux/link/LinuxCommandRunner.h"

#include <QProcess>

#include "common/Paths.h"
#include "platform/linux/os/DetachedProcess.h"
#include "platform/posix/ProgramFile.h"

namespace quindle {

bool LinuxCommandRunner::run(const QString& command, const QStringList& arguments)
{
    const QStringList words = QProcess::splitCommand(command);
    if (words.isEmpty())
        return false;
    QList<QByteArray> parts;
    for (const QString& word : words + arguments)
        parts.append(pathBytes(word));
    // Looked up here, so that a missing command can be named.
    parts.front() = programPath(parts.front(), {});
    return !parts.front().isEmpty() && startDetached(parts);
}

} // namespace quindle
