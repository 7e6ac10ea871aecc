#include "platform/linux/display/DisplayEnd.h"

#include <cstddef>
#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <utility>

#include "common/Paths.h"
#include "platform/linux/display/X11Display.h"
#include "platform/posix/FileDescriptor.h"

namespace quindle {

namespace {

DisplayEnd::File displayFileAt(const QString& path)
{
    struct stat found = {};
    if (path.isEmpty() || ::stat(pathBytes(path).constData(), &found) != 0)
        return {};
    return {found.st_ino, found.st_mtim.tv_sec, found.st_mtim.tv_nsec};
}

/// An X server listens at a second address too, of that name in a space without files.
bool listensWithoutFile(const QByteArray& path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(path.size()) + 1 > sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path + 1, path.constData(), static_cast<std::size_t>(path.size()));
    const auto length =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1) + static_cast<socklen_t>(path.size());
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), length) == 0;
}

} // namespace

QString displaySocket(const DisplayNames& names)
{
    if (!names.wayland.isEmpty())
        return pathText(names.wayland.startsWith('/') ? names.wayland
                                                      : names.runtimeFolder + '/' + names.wayland);
    // ":0", ":0.1"; with a host's name it is reached over the network.
    const QByteArray number =
        names.x11.startsWith(':') ? names.x11.mid(1).split('.').constFirst() : QByteArray();
    bool isNumber = false;
    number.toUInt(&isNumber);
    return isNumber ? QStringLiteral("/tmp/.X11-unix/X") + pathText(number) : QString();
}

QString displaySocketOfProcess()
{
    const QByteArray toolkit = qgetenv("QT_QPA_PLATFORM");
    const QByteArray wayland = qgetenv("WAYLAND_DISPLAY");
    return displaySocket(
        {.wayland = toolkit.isEmpty() || toolkit.startsWith("wayland") ? wayland : QByteArray(),
         .x11 = x11DisplayName(qgetenv("DISPLAY"), wayland, toolkit),
         .runtimeFolder = qgetenv("XDG_RUNTIME_DIR")});
}

DisplayEnd::DisplayEnd(const QString& socket, std::chrono::milliseconds settling, std::function<void()> ended)
    : m_socket(socket)
    , m_file(displayFileAt(socket))
    , m_ended(std::move(ended))
{
    if (m_file == File())
        return;
    m_settling.setSingleShot(true);
    m_settling.setInterval(settling);
    m_settling.callOnTimeout(&m_settling, [this] { look(); });
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_settling,
                     [this] { m_settling.start(); });
    m_watcher.addPath(socket);
}

void DisplayEnd::look()
{
    const File present = displayFileAt(m_socket);
    const bool isThere = present == m_file || (present == File() && listensWithoutFile(pathBytes(m_socket)));
    if (!isThere && m_ended)
        std::exchange(m_ended, {})();
}

} // namespace quindle
