#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace quindle {

/// Ends the process with a line on standard error and an exit status when it is not destroyed in time: for a
/// part of the start in which a bus or file system may keep a call waiting for ever.
class StartDeadline
{
public:
    /// `reason` is what to say: "... does not answer".
    StartDeadline(std::chrono::seconds patience, const std::string& reason,
                  const std::string& program = "quindle-helper", int status = 1);
    ~StartDeadline();
    StartDeadline(const StartDeadline&) = delete;
    StartDeadline& operator=(const StartDeadline&) = delete;

private:
    void wait(std::chrono::seconds patience);

    std::string m_line;
    int m_status;
    std::mutex m_mutex;
    std::condition_variable m_ended;
    bool m_isOver = false;
    std::thread m_waiting;
};

} // namespace quindle
