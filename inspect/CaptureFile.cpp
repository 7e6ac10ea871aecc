#include "inspect/CaptureFile.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "common/Paths.h"
#include "platform/posix/FileDescriptor.h"
#include "platform/posix/FileReplacement.h"
#include "plist/PropertyList.h"

namespace quindle {

namespace {

bool isDeviceOrPipe(const QByteArray& path)
{
    struct stat found = {};
    return ::stat(path.constData(), &found) == 0 && !S_ISREG(found.st_mode) && !S_ISDIR(found.st_mode);
}

/// A device or pipe is written to: replacing it by a file would take it from everybody. Returns errno's
/// value.
int writeInto(const QByteArray& path, const QByteArray& content)
{
    const FileDescriptor file(::open(path.constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
    if (!file.isOpen())
        return errno;
    for (qsizetype written = 0; written < content.size();) {
        const ssize_t count = ::write(file.get(), content.constData() + written,
                                      static_cast<std::size_t>(content.size() - written));
        if (count < 0 && errno != EINTR)
            return errno;
        written += count > 0 ? count : 0;
    }
    return 0;
}

} // namespace

QString writeMachineFile(const QString& path, const QVariantMap& keys)
{
    const QByteArray content = xmlPropertyList(keys);
    std::error_code error;
    // The writer takes absolute paths only.
    const auto absolute = std::filesystem::absolute(pathBytes(path).toStdString(), error);
    const QByteArray target = QByteArray::fromStdString(absolute);
    // A link stays a link, and a file is never seen half written.
    const int fault =
        isDeviceOrPipe(target) ? writeInto(target, content) : replaceFile(linkTarget(target), content);
    return fault == 0 ? QString() : qt_error_string(fault);
}

} // namespace quindle
