#include "platform/linux/supplies/SupplyReader.h"

#include <algorithm>
#include <utility>

#include "platform/linux/supplies/ReadingThread.h"

namespace quindle {

SupplyReader::SupplyReader(std::string folder, SupplyFolder::Scope scope, ReadFunction read,
                           ReadingPatience patience)
    : m_folder(std::move(folder))
    , m_scope(scope)
    , m_read(std::move(read))
    , m_patience(patience)
    , m_slowFiles(std::make_shared<SlowFiles>(m_folder, m_read))
{
}

SupplyReader::~SupplyReader()
{
    m_bell->silence();
    if (m_thread)
        m_thread->end();
}

std::optional<SupplyReadings> SupplyReader::read(bool looksAgain)
{
    // Remembered: while a reading hangs no new one begins that could look.
    m_looksAgain = m_looksAgain || looksAgain;
    if (std::exchange(m_hasArrived, false))
        return takeArrived();
    if (m_wasLate && Clock::now() < m_restsUntil)
        return std::nullopt;
    if (std::optional<SupplyReadings> late = takeLate())
        return late;
    const auto deadline = Clock::now() + patience();
    // Wakes whenever a file may have got stuck, not only at the deadline: the others can then still be read
    // in time.
    while (request()) {
        if (auto answer = m_thread->take(std::min(deadline, Clock::now() + m_patience.withFile))) {
            m_wasLate = false;
            return accept(std::move(answer->readings));
        }
        if (m_thread->abandonIfStuck(m_patience.withFile))
            // A new thread goes on without that file.
            m_thread.reset();
        else if (Clock::now() >= deadline)
            break;
    }
    return giveUp();
}

std::nullopt_t SupplyReader::giveUp()
{
    m_wasLate = true;
    if (m_thread)
        m_thread->ringWhenAnswered(m_bell);
    return std::nullopt;
}

void SupplyReader::setLateObserver(std::function<void()> arrived)
{
    m_bell->setCall([this, arrived = std::move(arrived)] {
        m_hasArrived = true;
        arrived();
    });
}

/// What the bell has rung for. It may be asked for twice, and the next reading is likely to be late too: the
/// bell must not ring again at once.
std::optional<SupplyReadings> SupplyReader::takeArrived()
{
    constexpr std::chrono::seconds rest(1);
    auto answer = m_thread ? m_thread->take(Clock::now()) : std::nullopt;
    if (!answer)
        return std::nullopt;
    m_restsUntil = Clock::now() + rest;
    m_wasLate = answer->duration >= m_patience.later;
    return accept(std::move(answer->readings));
}

/// The reading that was late last time, unless the next one can be waited for again.
std::optional<SupplyReadings> SupplyReader::takeLate()
{
    auto answer = m_wasLate && m_thread ? m_thread->take(Clock::now()) : std::nullopt;
    if (!answer)
        return std::nullopt;
    m_wasLate = answer->duration >= m_patience.later;
    if (!m_wasLate)
        return std::nullopt;
    request();
    return accept(std::move(answer->readings));
}

std::optional<SupplyReadings> SupplyReader::accept(std::optional<SupplyReadings> readings)
{
    m_hasAnswered = true;
    if (!readings)
        return std::nullopt;
    SupplyFolder::KnownKinds kinds;
    for (const SupplyReading& reading : *readings) {
        const auto known = m_kinds.find(reading.name);
        if (reading.kind != SupplyKind::Other)
            kinds[reading.name] = reading.kind;
        // A kind that could not be read this time stays the same.
        else if (known != m_kinds.end())
            kinds.insert(*known);
    }
    m_kinds = std::move(kinds);
    return readings;
}

std::chrono::milliseconds SupplyReader::patience() const
{
    if (m_wasLate)
        // After a late reading the next ones are not waited for, or each would hold up a refresh.
        return std::chrono::milliseconds(0);
    return m_hasAnswered ? m_patience.later : m_patience.first;
}

/// Sees to it that a reading is under way. A new thread looks at everything anew.
bool SupplyReader::request()
{
    if (!m_thread) {
        // Each hanging file holds a thread; beyond this many nothing more is tried.
        if (m_slowFiles->areTooMany())
            return false;
        m_thread = std::make_shared<ReadingThread>(m_folder, m_scope, m_kinds, m_read, m_slowFiles);
    }
    return m_thread->isBusy() || m_thread->request(std::exchange(m_looksAgain, false));
}

} // namespace quindle
