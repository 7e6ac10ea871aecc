#include "platform/linux/session/StartDeadline.h"

#include <unistd.h>

#include "platform/linux/os/StandardError.h"

namespace quindle {

// A thread, not an alarm: only a fatal signal, as at the end of the process, interrupts a call to an absent
// file server.
StartDeadline::StartDeadline(std::chrono::seconds patience, const std::string& reason,
                             const std::string& program, int status)
    : m_line(program + ": gave up: " + reason + '\n')
    , m_status(status)
    , m_waiting([this, patience] { wait(patience); })
{
}

StartDeadline::~StartDeadline()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isOver = true;
    }
    m_ended.notify_one();
    m_waiting.join();
}

void StartDeadline::wait(std::chrono::seconds patience)
{
    std::unique_lock lock(m_mutex);
    if (m_ended.wait_for(lock, patience, [this] { return m_isOver; }))
        return;
    writeToStandardError(m_line.data(), m_line.size());
    // At once: destructors may wait for the very call that does not return.
    ::_exit(m_status);
}

} // namespace quindle
