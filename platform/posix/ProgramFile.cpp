#include "platform/posix/ProgramFile.h"

#include <filesystem>
#include <unistd.h>

#include "common/Paths.h"

namespace quindle {

namespace {

QList<QByteArray> searchPath(const QStringList& folders)
{
    if (folders.isEmpty())
        return qgetenv("PATH").split(':');
    QList<QByteArray> path;
    for (const QString& folder : folders)
        path += pathBytes(folder);
    return path;
}

bool isRunnable(const QByteArray& path)
{
    std::error_code error;
    return std::filesystem::is_regular_file(path.toStdString(), error) &&
           ::access(path.constData(), X_OK) == 0;
}

} // namespace

QByteArray programPath(const QByteArray& program, const QStringList& folders)
{
    // The system would read the name up to the NUL.
    if (program.isEmpty() || program.contains('\0'))
        return {};
    // The process's folder says nothing about where a session starts programs.
    if (program.contains('/'))
        return program.startsWith('/') && isRunnable(program) ? program : QByteArray();
    // A relative folder would mean another one in each process.
    for (const QByteArray& folder : searchPath(folders))
        if (const QByteArray path = folder + '/' + program; folder.startsWith('/') && isRunnable(path))
            return path;
    return {};
}

QString programFile(const QByteArray& program, const QStringList& folders)
{
    const QByteArray path = programPath(program, folders);
    std::error_code error;
    const auto file = std::filesystem::canonical(path.toStdString(), error);
    return error ? QString() : pathText(QByteArray::fromStdString(file));
}

} // namespace quindle
