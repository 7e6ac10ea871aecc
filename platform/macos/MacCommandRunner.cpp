#include "platform/macos/MacCommandRunner.h"

#include <QProcess>

#include "common/Paths.h"
#include "platform/posix/ProgramFile.h"

namespace quindle {

bool MacCommandRunner::run(const QString& command, const QStringList& arguments)
{
    QStringList words = QProcess::splitCommand(command);
    if (words.isEmpty())
        return false;
    const QByteArray program = programPath(pathBytes(words.takeFirst()), {});
    return !program.isEmpty() && QProcess::startDetached(pathText(program), words + arguments);
}

} // namespace quindle
