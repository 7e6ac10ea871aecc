#include "platform/linux/supplies/ReadingThread.h"

#include <algorithm>
#include <cerrno>
#include <thread>
#include <utility>

#include "platform/linux/os/DetachedThread.h"

namespace quindle {

ReadingThread::ReadingThread(const std::string& folder, SupplyFolder::Scope scope,
                             SupplyFolder::KnownKinds kinds, const ReadFunction& read,
                             std::shared_ptr<SlowFiles> slowFiles)
    : m_slowFiles(std::move(slowFiles))
    , m_folder(folder, scope, std::move(kinds), read, *this)
{
}

bool ReadingThread::request(bool looksAgain)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_requestedAt = Clock::now();
        m_isBusy = true;
        // An answer that was not taken is outdated.
        m_answer.reset();
        m_bell.reset();
        m_hasAnswer = false;
    }
    // The thread keeps this object alive: it may hang in a file long after the reader is gone.
    const auto read = [self = shared_from_this(), looksAgain] {
        self->answer(self->m_folder.read(looksAgain));
    };
    if (startThreadHere(read))
        return true;
    const std::scoped_lock lock(m_mutex);
    // Nobody must wait for a reading that never began.
    m_isBusy = false;
    return false;
}

bool ReadingThread::isBusy() const
{
    const std::scoped_lock lock(m_mutex);
    return m_isBusy;
}

/// The reading has the processor meanwhile. It takes about as long as going to sleep and being woken up,
/// which not sleeping avoids.
void ReadingThread::yieldUntilAnswered(Clock::time_point deadline) const
{
    constexpr std::chrono::milliseconds longest(1);
    const auto end = std::min(deadline, Clock::now() + longest);
    while (!m_hasAnswer && Clock::now() < end)
        std::this_thread::yield();
}

std::optional<ReadingThread::Answer> ReadingThread::take(Clock::time_point deadline)
{
    yieldUntilAnswered(deadline);
    std::unique_lock lock(m_mutex);
    m_answered.wait_until(lock, deadline, [this] { return m_answer.has_value(); });
    m_hasAnswer = false;
    return std::exchange(m_answer, std::nullopt);
}

void ReadingThread::ringWhenAnswered(std::shared_ptr<LateBell> bell)
{
    const std::scoped_lock lock(m_mutex);
    if (m_answer)
        bell->ring();
    else if (m_isBusy)
        m_bell = std::move(bell);
}

bool ReadingThread::abandonIfStuck(std::chrono::milliseconds longest)
{
    const std::scoped_lock lock(m_mutex);
    if (m_path.empty() || Clock::now() - m_begun < longest)
        return false;
    // Should the file answer after all, its thread hands the answer over and ends at the next file.
    m_stuckFile = m_slowFiles->add(m_path, m_begun);
    m_isEnded = true;
    return true;
}

void ReadingThread::end()
{
    const std::scoped_lock lock(m_mutex);
    m_isEnded = true;
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

void ReadingThread::answer(std::optional<SupplyReadings> readings)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_answer = {std::move(readings), Clock::now() - m_requestedAt};
        m_isBusy = false;
        m_hasAnswer = true;
        if (const auto bell = std::exchange(m_bell, nullptr))
            bell->ring();
    }
    m_answered.notify_one();
}

} // namespace quindle
