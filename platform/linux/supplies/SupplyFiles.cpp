#include "platform/linux/supplies/SupplyFiles.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace quindle {

ssize_t readDescriptor(int descriptor, const char* /*attribute*/, char* buffer, std::size_t size)
{
    // The kernel makes such a file anew for each read from its beginning, so it can stay open.
    const ssize_t result = pread(descriptor, buffer, size, 0);
    return result < 0 ? -errno : result;
}

FileDescriptor openRegularFile(int folder, const char* path)
{
    // A pipe must not wait for a writer, nor a terminal become that of the process.
    FileDescriptor descriptor(openat(folder, path, O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    struct stat status
    {
    };
    if (!descriptor.isOpen() || (fstat(descriptor.get(), &status) == 0 && S_ISREG(status.st_mode)))
        return descriptor;
    errno = ENOENT;
    return {};
}

bool isOfKernel(int folder)
{
    struct statfs status
    {
    };
    return fstatfs(folder, &status) == 0 && status.f_type == SYSFS_MAGIC;
}

bool isAccident(ssize_t result)
{
    // EMFILE and ENFILE are this program's own problem, and ECANCELED means that the wait was over.
    constexpr std::array accidents = {EIO,       EAGAIN, EBUSY,  ETIMEDOUT, EINTR,
                                      EREMOTEIO, EMFILE, ENFILE, ECANCELED};
    return std::find(accidents.begin(), accidents.end(), -result) != accidents.end();
}

} // namespace quindle
