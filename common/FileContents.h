#pragma once

#include <QByteArray>
#include <QString>

namespace quindle {

/// What a file holds, or why it cannot be read.
struct FileContents
{
    QByteArray bytes;
    int error = 0; ///< errno's value; EINVAL if it is not an ordinary file, EFBIG if it is too large
};

/// Reads a whole ordinary file. Anything else, such as a device or a pipe, is not opened: it could keep the
/// reader waiting without end, or be endless.
FileContents fileContents(const QString& path, qint64 mostBytes);

/// Why a file could not be read, to follow its name: "cannot be read: No such file or directory".
QString readingFault(int error);

} // namespace quindle
