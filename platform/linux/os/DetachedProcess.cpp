#include "platform/linux/os/DetachedProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <vector>

#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/linux/os/CoreDumps.h"

namespace quindle {

namespace {

/// An open file of this process for the program, and the number it will have there.
struct Inheritance
{
    int file = -1; ///< none
    int number = -1;
};

void inherit(const Inheritance& inheritance)
{
    if (inheritance.file < 0)
        return;
    // Every file of this program is closed on exec; this one is to stay open.
    if (inheritance.file == inheritance.number)
        ::fcntl(inheritance.file, F_SETFD, 0);
    else
        ::dup2(inheritance.file, inheritance.number);
}

/// Signals that this process blocks, to read them by other means, must end others as usual.
void unblockSignals()
{
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

/// Between fork and exec only calls that are safe in a signal handler: other threads may hold any lock. The
/// report is the number of the process that is to run the program, and another one if it does not.
[[noreturn]] void runAsGrandchild(char* const* arguments, const Inheritance& inheritance, int report)
{
    ::setsid();
    if (::fork() != 0)
        ::_exit(0);
    const pid_t own = ::getpid();
    [[maybe_unused]] ssize_t written = ::write(report, &own, sizeof own);
    takeWholeCoreDumps();
    unblockSignals();
    inherit(inheritance);
    ::execv(arguments[0], arguments);
    written = ::write(report, &own, sizeof own);
    ::_exit(1);
}

/// How the child ended says nothing: where the helper was started with SIGCHLD ignored, nobody hears of it.
void waitForEnd(pid_t child)
{
    while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
}

/// The numbers in the pipe until it is closed, as exec does.
std::vector<pid_t> reportOf(int pipe)
{
    std::vector<pid_t> numbers;
    pid_t number = 0;
    for (;;) {
        const ssize_t count = ::read(pipe, &number, sizeof number);
        if (count == sizeof number)
            numbers.push_back(number);
        else if (count >= 0 || errno != EINTR)
            return numbers;
    }
}

/// The process that runs the program; nothing when none does.
std::optional<pid_t> runDetached(const QList<QByteArray>& command, const Inheritance& inheritance)
{
    std::vector<QByteArray> words(command.cbegin(), command.cend());
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (QByteArray& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    std::array<int, 2> ends{};
    if (words.empty() || ::pipe2(ends.data(), O_CLOEXEC) != 0)
        return std::nullopt;
    const FileDescriptor reports(ends[0]);
    FileDescriptor report(ends[1]);
    const pid_t child = ::fork();
    if (child == 0)
        runAsGrandchild(arguments.data(), inheritance, report.get());
    // Reading would wait for the end of this one too.
    report.close();
    if (child < 0)
        return std::nullopt;
    waitForEnd(child);
    const std::vector<pid_t> numbers = reportOf(reports.get());
    return numbers.size() == 1 ? std::optional(numbers.front()) : std::nullopt;
}

/// A handle of the process that runs the program; nothing when none does.
std::optional<FileDescriptor> runWith(const QList<QByteArray>& command, const Inheritance& inheritance)
{
    const auto process = runDetached(command, inheritance);
    if (!process)
        return std::nullopt;
    // By number: the C library has the function only since 2.36.
    return FileDescriptor(static_cast<int>(::syscall(SYS_pidfd_open, *process, 0)));
}

} // namespace

bool startDetached(const QList<QByteArray>& command)
{
    return runDetached(command, {}).has_value();
}

std::optional<FileDescriptor> startDetachedWith(const FileDescriptor& inherited,
                                                const QList<QByteArray>& command)
{
    return runWith(command, {.file = inherited.get(), .number = inherited.get()});
}

std::optional<FileDescriptor> startDetachedReading(const FileDescriptor& input,
                                                   const QList<QByteArray>& command)
{
    return runWith(command, {.file = input.get(), .number = STDIN_FILENO});
}

} // namespace quindle
