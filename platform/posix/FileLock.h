#pragma once

#include <chrono>
#include <optional>

#include <QByteArray>

#include "platform/posix/FileDescriptor.h"

namespace quindle {

/// An exclusive lock between processes, held as long as the object lives. It has a file of its own, which
/// stays behind empty: a data file that is replaced by renaming cannot carry a lock. The kernel releases it
/// when the process ends, however it ends.
class FileLock
{
public:
    /// Takes the lock at `path`, creating the file (0600). Waits for another holder for up to `patience`; 0
    /// tries once. Nothing on failure: errno says why, EWOULDBLOCK when it is still held.
    static std::optional<FileLock> take(const QByteArray& path, std::chrono::milliseconds patience);

private:
    explicit FileLock(FileDescriptor file)
        : m_file(std::move(file))
    {
    }

    FileDescriptor m_file;
};

} // namespace quindle
