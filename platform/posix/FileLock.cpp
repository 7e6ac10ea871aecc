#include "platform/posix/FileLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace quindle {

namespace {

// A lock on a file that was removed meanwhile excludes nobody.
bool isStillAt(int descriptor, const QByteArray& path)
{
    struct stat opened = {};
    struct stat named = {};
    return ::fstat(descriptor, &opened) == 0 && ::stat(path.constData(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

// O_NOFOLLOW, because the next process might lock another file behind the link.
FileDescriptor tryLock(const QByteArray& path)
{
    for (;;) {
        FileDescriptor file(
            ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600));
        if (!file.isOpen() || ::flock(file.get(), LOCK_EX | LOCK_NB) != 0)
            return FileDescriptor();
        if (isStillAt(file.get(), path))
            return file;
    }
}

} // namespace

std::optional<FileLock> FileLock::take(const QByteArray& path, std::chrono::milliseconds patience)
{
    const auto deadline = std::chrono::steady_clock::now() + patience;
    for (;;) {
        FileDescriptor file = tryLock(path);
        if (file.isOpen())
            return FileLock(std::move(file));
        // Waiting only helps while another process holds the lock.
        if (errno != EWOULDBLOCK)
            return std::nullopt;
        if (std::chrono::steady_clock::now() >= deadline) {
            errno = EWOULDBLOCK;
            return std::nullopt;
        }
        // Retried instead of waiting in the kernel: a stopped holder must not stop us for good.
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    }
}

} // namespace quindle
