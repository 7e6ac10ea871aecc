#include "platform/linux/power/SlowReads.h"

#include <algorithm>
#include <array>
#include <condition_variable>
#include <deque>
#include <thread>

namespace quindle {

SlowRead::SlowRead(FileDescriptor descriptor, const char* attribute, std::string text, ssize_t result)
    : m_descriptor(std::move(descriptor))
    , m_attribute(attribute)
    , m_text(std::move(text))
    , m_result(result)
{
}

ssize_t SlowRead::latest(char* buffer, std::size_t size) const
{
    const std::scoped_lock lock(m_mutex);
    if (m_result < 0)
        return m_result;
    return static_cast<ssize_t>(m_text.copy(buffer, size));
}

bool SlowRead::begin()
{
    const std::scoped_lock lock(m_mutex);
    return !std::exchange(m_underWay, true);
}

void SlowRead::perform(const ReadFunction& read)
{
    std::array<char, 4096> buffer{};
    const ssize_t result = read(m_descriptor.get(), m_attribute, buffer.data(), buffer.size());
    const std::scoped_lock lock(m_mutex);
    m_result = result;
    m_text.assign(buffer.data(), static_cast<std::size_t>(std::max<ssize_t>(result, 0)));
    m_underWay = false;
}

struct SlowReads::Queue
{
    ReadFunction read;
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::shared_ptr<SlowRead>> requests;
    bool ended = false;
};

SlowReads::SlowReads(ReadFunction read)
    : m_queue(std::make_shared<Queue>())
{
    m_queue->read = std::move(read);
}

SlowReads::~SlowReads()
{
    const std::scoped_lock lock(m_queue->mutex);
    m_queue->ended = true;
    m_queue->changed.notify_one();
}

void SlowReads::request(const std::shared_ptr<SlowRead>& slowRead)
{
    if (!slowRead->begin())
        return;
    if (!std::exchange(m_started, true))
        std::thread([queue = m_queue] { work(queue); }).detach();
    const std::scoped_lock lock(m_queue->mutex);
    m_queue->requests.push_back(slowRead);
    m_queue->changed.notify_one();
}

void SlowReads::work(const std::shared_ptr<Queue>& queue)
{
    while (true) {
        std::unique_lock lock(queue->mutex);
        queue->changed.wait(lock, [&] { return queue->ended || !queue->requests.empty(); });
        if (queue->ended)
            return;
        const std::shared_ptr<SlowRead> next = std::move(queue->requests.front());
        queue->requests.pop_front();
        lock.unlock();
        next->perform(queue->read);
    }
}

} // namespace quindle
