#include "platform/linux/os/DetachedProcess.h"

#include <array>
#include <cerrno>
#include <vector>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/linux/os/CoreDumps.h"
#include "platform/linux/os/FileDescriptor.h"

namespace quindle {

namespace {

/// Between fork and exec only calls that are safe in a signal handler: other threads may hold any lock.
[[noreturn]] void runAsGrandchild(char* const* arguments, int faults)
{
    ::setsid();
    if (const pid_t child = ::fork(); child != 0)
        ::_exit(child > 0 ? 0 : 1);
    takeWholeCoreDumps();
    ::execv(arguments[0], arguments);
    const char failed = 1;
    [[maybe_unused]] const ssize_t written = ::write(faults, &failed, sizeof failed);
    ::_exit(1);
}

bool endedWell(pid_t child)
{
    int status = 0;
    while (::waitpid(child, &status, 0) < 0)
        if (errno != EINTR)
            return false;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// Whether the pipe is closed, as exec does, without anything having been written into it.
bool endsEmpty(int pipe)
{
    char fault = 0;
    ssize_t count = 0;
    do
        count = ::read(pipe, &fault, sizeof fault);
    while (count < 0 && errno == EINTR);
    return count == 0;
}

} // namespace

bool startDetached(const QList<QByteArray>& command)
{
    std::vector<QByteArray> words(command.cbegin(), command.cend());
    std::vector<char*> arguments;
    for (QByteArray& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    std::array<int, 2> ends{};
    if (words.empty() || ::pipe2(ends.data(), O_CLOEXEC) != 0)
        return false;
    const FileDescriptor faults(ends[0]);
    FileDescriptor report(ends[1]);
    const pid_t child = ::fork();
    if (child == 0)
        runAsGrandchild(arguments.data(), report.get());
    report.close();
    return child > 0 && endedWell(child) && endsEmpty(faults.get());
}

} // namespace quindle
