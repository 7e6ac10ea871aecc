#pragma once

#include <QByteArray>
#include <QString>

namespace quindle {

/// What a file holds, or why that is not to be had.
struct FileContents
{
    QByteArray bytes;
    int error = 0; ///< errno's value; EINVAL for what is no ordinary file, EFBIG for one that is too large
};

/// Reads a whole ordinary file. Anything else, such as a device or a pipe, is not opened: it could keep the
/// reader waiting for ever, or have no end.
FileContents fileContents(const QString& path, qint64 mostBytes);

/// Why a file could not be read, to follow its name: "cannot be read: No such file or directory".
QString readingFault(int error);

} // namespace quindle
