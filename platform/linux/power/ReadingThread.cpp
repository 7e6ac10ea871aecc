#include "platform/linux/power/ReadingThread.h"

#include <algorithm>
#include <cerrno>
#include <thread>

#include "platform/linux/os/VectorRegisters.h"

namespace quindle {

std::shared_ptr<ReadingThread> ReadingThread::start(const std::string& folder, SupplyFolder::Scope scope,
                                                    SupplyFolder::KnownKinds kinds, const ReadFunction& read,
                                                    std::shared_ptr<SlowFiles> slowFiles)
{
    auto thread =
        std::make_shared<ReadingThread>(folder, scope, std::move(kinds), read, std::move(slowFiles));
    if (!startThread([thread] { thread->work(); }))
        return nullptr;
    return thread;
}

ReadingThread::ReadingThread(const std::string& folder, SupplyFolder::Scope scope,
                             SupplyFolder::KnownKinds kinds, const ReadFunction& read,
                             std::shared_ptr<SlowFiles> slowFiles)
    : m_slowFiles(std::move(slowFiles))
    , m_folder(folder, scope, std::move(kinds), read, *this)
{
}

void ReadingThread::request(bool looksAgain)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_request = looksAgain;
        m_requestedAt = Clock::now();
        m_isBusy = true;
        m_answer.reset();
        m_hasAnswer = false;
    }
    m_requested.notify_one();
}

bool ReadingThread::isBusy() const
{
    const std::scoped_lock lock(m_mutex);
    return m_isBusy;
}

/// A reading takes a few hundredths of a millisecond, about as long as putting a thread to sleep and waking
/// it.
void ReadingThread::spinUntilAnswered() const
{
    constexpr std::chrono::microseconds longest(60);
    static const bool hasProcessorToSpare = std::thread::hardware_concurrency() > 1;
    const auto end = Clock::now() + longest;
    while (hasProcessorToSpare && !m_hasAnswer && Clock::now() < end) {
    }
}

std::optional<ReadingThread::Answer> ReadingThread::take(Clock::time_point deadline)
{
    spinUntilAnswered();
    std::unique_lock lock(m_mutex);
    m_answered.wait_until(lock, deadline, [this] { return m_answer.has_value(); });
    m_hasAnswer = false;
    return std::exchange(m_answer, std::nullopt);
}

bool ReadingThread::abandonIfStuck(std::chrono::milliseconds longest)
{
    const std::scoped_lock lock(m_mutex);
    if (m_path.empty() || Clock::now() - m_begun < longest)
        return false;
    m_stuckFile = m_slowFiles->add(m_path, m_begun);
    m_isEnded = true;
    return true;
}

void ReadingThread::end()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_isEnded = true;
    }
    m_requested.notify_one();
}

std::optional<ssize_t> ReadingThread::insteadOf(const std::string& path, char* buffer, std::size_t size)
{
    {
        const std::scoped_lock lock(m_mutex);
        if (m_isEnded)
            return -ECANCELED;
    }
    return m_slowFiles->insteadOf(path, buffer, size);
}

void ReadingThread::begin(const std::string& path)
{
    const std::scoped_lock lock(m_mutex);
    m_path = path;
    m_begun = Clock::now();
}

void ReadingThread::end(const char* buffer, ssize_t result)
{
    const std::scoped_lock lock(m_mutex);
    m_path.clear();
    if (m_stuckFile)
        std::exchange(m_stuckFile, nullptr)->deliver(buffer, result);
}

void ReadingThread::work()
{
    while (const std::optional<bool> looksAgain = nextRequest())
        answer(m_folder.read(*looksAgain));
}

std::optional<bool> ReadingThread::nextRequest()
{
    clearVectorRegisters(); // of what was read, which a core dump would hold for as long as nobody asks
    std::unique_lock lock(m_mutex);
    m_requested.wait(lock, [this] { return m_isEnded || m_request; });
    return m_isEnded ? std::nullopt : std::exchange(m_request, std::nullopt);
}

void ReadingThread::answer(std::optional<SupplyReadings> readings)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_answer = {std::move(readings), Clock::now() - m_requestedAt};
        m_isBusy = false;
        m_hasAnswer = true;
    }
    m_answered.notify_one();
}

} // namespace quindle
