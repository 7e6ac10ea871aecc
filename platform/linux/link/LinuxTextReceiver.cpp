#include "platform/linux/link/LinuxTextReceiver.h"

#include <cerrno>
#include <utility>

#include <poll.h>
#include <sys/mman.h>
#include <unistd.h>

#include "platform/linux/os/DetachedProcess.h"

namespace quindle {

namespace {

/// The kernel complains of files in memory without this flag; its header has it since Linux 6.3, and older
/// kernels refuse it.
constexpr unsigned neverExecuted = 0x0008U;

FileDescriptor fileInMemory()
{
    constexpr const char* name = "quindle-text";
    const int file = ::memfd_create(name, MFD_CLOEXEC | neverExecuted);
    return FileDescriptor(file < 0 && errno == EINVAL ? ::memfd_create(name, MFD_CLOEXEC) : file);
}

bool writeAll(const FileDescriptor& file, QByteArrayView text)
{
    while (!text.isEmpty()) {
        const ssize_t written = ::write(file.get(), text.data(), static_cast<std::size_t>(text.size()));
        // Memory may be short; a mere signal only interrupts.
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0)
            text = text.sliced(written);
    }
    return true;
}

/// Holds the whole text, to be read from its beginning; not open where the system gives none.
FileDescriptor fileOf(const QByteArray& text)
{
    FileDescriptor file = fileInMemory();
    if (file.isOpen() && (!writeAll(file, text) || ::lseek(file.get(), 0, SEEK_SET) != 0))
        file.close();
    return file;
}

} // namespace

LinuxTextReceiver::LinuxTextReceiver(QList<QByteArray> command)
    : m_command(std::move(command))
{
}

bool LinuxTextReceiver::isInstalled() const
{
    return ::access(m_command.constFirst().constData(), X_OK) == 0;
}

bool LinuxTextReceiver::isRunning()
{
    pollfd process{.fd = m_process.get(), .events = POLLIN, .revents = 0};
    // Readable once it has ended.
    if (m_process.isOpen() && ::poll(&process, 1, 0) == 1)
        m_process.close();
    return m_process.isOpen();
}

bool LinuxTextReceiver::handOver(const QByteArray& text)
{
    const FileDescriptor input = fileOf(text);
    auto process = input.isOpen() ? startDetachedReading(input, m_command) : std::nullopt;
    if (process)
        m_process = std::move(*process);
    return process.has_value();
}

} // namespace quindle
