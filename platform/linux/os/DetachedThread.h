#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace quindle {

/// Runs `work` on a thread that nobody waits for, since it may hang for ever. False when the system has no
/// room for a thread.
bool startThread(std::function<void()> work);

/// The same on the caller's processor, which is awake: no other one has to be woken for short work that the
/// caller waits for.
bool startThreadHere(std::function<void()> work);

/// The end of a piece of work on a thread of its own, which may never come. What that thread has written
/// before `reach` can be read after `isReached`.
class EndOfWork
{
public:
    /// Waits for it, at most that long.
    bool isReached(std::chrono::milliseconds patience)
    {
        std::unique_lock lock(m_mutex);
        return m_reached.wait_for(lock, patience, [this] { return m_isReached; });
    }

    void reach()
    {
        {
            const std::scoped_lock lock(m_mutex);
            m_isReached = true;
        }
        m_reached.notify_one();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_reached;
    bool m_isReached = false;
};

} // namespace quindle
