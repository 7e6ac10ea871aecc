#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include <QObject>

#include "platform/linux/supplies/SlowFiles.h"
#include "platform/linux/supplies/SupplyFolder.h"

namespace quindle {

/// Calls back on the main loop from any thread. Made, given its call and silenced on the main thread.
class LateBell
{
public:
    void setCall(std::function<void()> call) { m_call = std::move(call); }

    /// Makes the call soon, unless it was silenced.
    void ring()
    {
        const std::scoped_lock lock(m_mutex);
        if (m_home && m_call)
            QMetaObject::invokeMethod(m_home.get(), m_call, Qt::QueuedConnection);
    }

    /// No call is made from now on.
    void silence()
    {
        const std::scoped_lock lock(m_mutex);
        m_home.reset();
    }

private:
    std::mutex m_mutex;
    std::function<void()> m_call;
    std::unique_ptr<QObject> m_home = std::make_unique<QObject>();
};

/// Reads a folder of supplies on request, each time on a thread that ends with the reading: between two there
/// is none that would have to be woken, or that keeps what it read in its registers. One that is stuck in a
/// file can be abandoned: if that file answers after all, its answer is delivered as a slow file's.
class ReadingThread : private ReadSteps, public std::enable_shared_from_this<ReadingThread>
{
public:
    using Clock = std::chrono::steady_clock;

    struct Answer
    {
        std::optional<SupplyReadings> readings; ///< nothing when the folder could not be listed
        Clock::duration duration{};             ///< from the request to the answer
    };

    ReadingThread(const std::string& folder, SupplyFolder::Scope scope, SupplyFolder::KnownKinds kinds,
                  const ReadFunction& read, std::shared_ptr<SlowFiles> slowFiles);

    /// Begins a reading. Only while it is not busy. False when the system has no room for a thread.
    bool request(bool looksAgain);

    /// Whether a reading is under way.
    bool isBusy() const;

    /// The answer to the last request, once; waits for it until `deadline`.
    std::optional<Answer> take(Clock::time_point deadline);

    /// Rings once when the answer to the last request is there.
    void ringWhenAnswered(std::shared_ptr<LateBell> bell);

    /// Abandons the thread if it has been at one file for that long, and adds the file to the slow ones.
    bool abandonIfStuck(std::chrono::milliseconds longest);

    /// Keeps a reading that is under way from touching any further file.
    void end();

private:
    std::optional<ssize_t> insteadOf(const std::string& path, char* buffer, std::size_t size) override;
    void begin(const std::string& path) override;
    void end(const char* buffer, ssize_t result) override;

    void answer(std::optional<SupplyReadings> readings);
    void yieldUntilAnswered(Clock::time_point deadline) const;

    const std::shared_ptr<SlowFiles> m_slowFiles;
    SupplyFolder m_folder; ///< of the thread alone, while it is busy

    mutable std::mutex m_mutex; ///< of what follows
    std::condition_variable m_answered;
    std::optional<Answer> m_answer;
    Clock::time_point m_requestedAt;
    std::string m_path; ///< the file that is being read; empty between two
    Clock::time_point m_begun;
    std::shared_ptr<SlowFile> m_stuckFile; ///< since the thread was abandoned
    std::shared_ptr<LateBell> m_bell;
    bool m_isBusy = false;
    bool m_isEnded = false;
    std::atomic<bool> m_hasAnswer = false; ///< whether m_answer is set, to be read without the mutex
};

} // namespace quindle
