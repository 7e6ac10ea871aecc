#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "platform/linux/power/SlowFiles.h"
#include "platform/linux/power/SupplyFolder.h"

namespace quindle {

/// A thread that reads a folder of supplies on request. One that is stuck in a file can be left to itself:
/// when that file answers after all, its answer is delivered as a slow file's and the thread ends.
class ReadingThread : private ReadSteps
{
public:
    using Clock = std::chrono::steady_clock;

    struct Answer
    {
        std::optional<SupplyReadings> readings; ///< nothing when the folder could not be listed
        Clock::duration duration{};             ///< from the request to the answer
    };

    /// Null when the system has no room for a thread. The object lives as long as the thread does.
    static std::shared_ptr<ReadingThread> start(const std::string& folder, SupplyFolder::Scope scope,
                                                SupplyFolder::KnownKinds kinds, const ReadFunction& read,
                                                std::shared_ptr<SlowFiles> slowFiles);

    ReadingThread(const std::string& folder, SupplyFolder::Scope scope, SupplyFolder::KnownKinds kinds,
                  const ReadFunction& read, std::shared_ptr<SlowFiles> slowFiles);

    /// Asks for a reading. Only while it is not busy.
    void request(bool looksAgain);

    /// Whether a reading is under way.
    bool isBusy() const;

    /// The answer to the last request, once; waits for it until `deadline`.
    std::optional<Answer> take(Clock::time_point deadline);

    /// Leaves the thread to itself if it has been with one file for so long, and adds that to the slow files.
    bool abandonIfStuck(std::chrono::milliseconds longest);

    /// Has the thread end when it has nothing to do.
    void end();

private:
    std::optional<ssize_t> insteadOf(const std::string& path, char* buffer, std::size_t size) override;
    void begin(const std::string& path) override;
    void end(const char* buffer, ssize_t result) override;

    void work();
    std::optional<bool> nextRequest();
    void answer(std::optional<SupplyReadings> readings);
    void spinUntilAnswered() const;

    const std::shared_ptr<SlowFiles> m_slowFiles;
    SupplyFolder m_folder; ///< of this thread alone

    mutable std::mutex m_mutex; ///< of what follows
    std::condition_variable m_requested;
    std::condition_variable m_answered;
    std::optional<bool> m_request;
    std::optional<Answer> m_answer;
    Clock::time_point m_requestedAt;
    std::string m_path; ///< the file that is being read; empty between two
    Clock::time_point m_begun;
    std::shared_ptr<SlowFile> m_stuckFile; ///< since the thread is left to itself
    bool m_isBusy = false;
    bool m_isEnded = false;
    std::atomic<bool> m_hasAnswer = false; ///< as m_answer, to be looked at without the mutex
};

} // namespace quindle
