#include "platform/linux/link/LinuxProgramStarter.h"

#include <csignal>
#include <utility>

#include <sys/syscall.h>
#include <unistd.h>

#include "platform/linux/link/SocketLink.h"
#include "platform/linux/os/DetachedProcess.h"

namespace quindle {

namespace {

class StartedProgram final : public LinkedProgram
{
public:
    StartedProgram(FileDescriptor end, FileDescriptor process)
        : m_link(std::move(end))
        , m_process(std::move(process))
    {
    }

    MessageLink& link() override { return m_link; }

    void kill() override
    {
        // By its handle: another process may have its number by now.
        if (m_process.isOpen())
            ::syscall(SYS_pidfd_send_signal, m_process.get(), SIGKILL, nullptr, 0);
    }

private:
    SocketLink m_link;
    FileDescriptor m_process;
};

} // namespace

LinuxProgramStarter::LinuxProgramStarter(QByteArray program)
    : m_program(std::move(program))
{
}

std::unique_ptr<LinkedProgram> LinuxProgramStarter::start()
{
    auto [own, others] = SocketLink::pair();
    // Before a process is made for it: what fails in there cannot be reported.
    if (!own.isOpen() || ::access(m_program.constData(), X_OK) != 0)
        return nullptr;
    auto process = startDetachedWith(others, {m_program, "--link=" + QByteArray::number(others.get())});
    return process ? std::make_unique<StartedProgram>(std::move(own), std::move(*process)) : nullptr;
}

} // namespace quindle
