#include "platform/linux/os/SmallFile.h"

#include <QString>

#include <fcntl.h>
#include <sys/stat.h>

#include "common/Paths.h"
#include "platform/posix/FileDescriptor.h"

namespace quindle {

std::optional<QByteArray> readSmallFile(const QString& path)
{
    // More than the kernel's attributes, firmware's texts and desktop entries ever hold.
    constexpr qsizetype limit = qsizetype{64} * 1024;
    const FileDescriptor file(
        open(pathBytes(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    struct stat status
    {
    };
    if (!file.isOpen() || fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    QByteArray content(limit, Qt::Uninitialized);
    // One read: the kernel's own files have no true size, and give everything at once.
    const ssize_t size = pread(file.get(), content.data(), static_cast<std::size_t>(limit), 0);
    if (size < 0)
        return std::nullopt;
    content.truncate(size);
    // The caller may keep a few bytes for the life of the process.
    content.squeeze();
    return content;
}

} // namespace quindle
