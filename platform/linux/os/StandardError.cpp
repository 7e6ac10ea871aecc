#include "platform/linux/os/StandardError.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QLoggingCategory>

#include "common/Paths.h"
#include "platform/posix/FileDescriptor.h"

namespace quindle {

namespace {

/// A pipe or terminal opened again, because making the shared one non-blocking would affect others too. Not
/// open for any other kind of file, and where the system refuses.
FileDescriptor openedAgain()
{
    struct stat found = {};
    if (::fstat(STDERR_FILENO, &found) != 0 || (!S_ISFIFO(found.st_mode) && !S_ISCHR(found.st_mode)))
        return {};
    return FileDescriptor(::open("/proc/self/fd/2", O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
}

/// The number of bytes written; -1 when it is impossible, or only by waiting.
ssize_t writeIfReady(const char* text, std::size_t size)
{
    // A socket cannot be opened again, but takes a flag for each write.
    const ssize_t sent = ::send(STDERR_FILENO, text, size, MSG_DONTWAIT | MSG_NOSIGNAL);
    if (sent >= 0 || errno != ENOTSOCK)
        return sent;
    pollfd writable{STDERR_FILENO, POLLOUT, 0};
    if (::poll(&writable, 1, 0) != 1 || (writable.revents & POLLOUT) == 0)
        return -1;
    // A pipe with any room has it for this many bytes.
    return ::write(STDERR_FILENO, text, std::min(size, std::size_t{PIPE_BUF}));
}

void logToStandardError(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (const QString line = qFormatLogMessage(type, context, message); !line.isNull())
        printToStandardError(pathBytes(line)); // lines name files
}

} // namespace

void writeToStandardError(const char* text, std::size_t size)
{
    const FileDescriptor own = openedAgain();
    while (size > 0) {
        const ssize_t written = own.isOpen() ? ::write(own.get(), text, size) : writeIfReady(text, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return;
        text += written;
        size -= static_cast<std::size_t>(written);
    }
}

void printToStandardError(const QByteArray& line)
{
    const QByteArray whole = line + '\n';
    writeToStandardError(whole.constData(), static_cast<std::size_t>(whole.size()));
}

void neverWaitForStandardError()
{
    // A handler, and not SIG_IGN, which programs that are started would inherit.
    std::signal(SIGPIPE, [](int) {});
    qInstallMessageHandler(logToStandardError);
}

} // namespace quindle
