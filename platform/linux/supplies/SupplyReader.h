#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/linux/supplies/ReadingThread.h"
#include "platform/linux/supplies/SlowFiles.h"
#include "platform/linux/supplies/SupplyFolder.h"

namespace quindle {

/// How long the main thread waits for a reading.
struct ReadingPatience
{
    std::chrono::milliseconds withFile{100}; ///< before a file counts as one that does not answer
    std::chrono::milliseconds first{1000};   ///< at the start, when there is nothing to show yet
    std::chrono::milliseconds later{200};
};

/// Reads the supplies on threads of their own, since a driver may hang while a file is read, and waits for
/// it: long enough for any driver that answers, but never for ever. A file that does not answer is from then
/// on read separately, so that it holds up neither the others nor the program. Main thread only.
class SupplyReader
{
public:
    SupplyReader(std::string folder, SupplyFolder::Scope scope, ReadFunction read, ReadingPatience patience);
    ~SupplyReader();

    SupplyReader(const SupplyReader&) = delete;
    SupplyReader& operator=(const SupplyReader&) = delete;

    /// The supplies as they are now (see SupplyFolder::read); nothing when they could not be read in time.
    /// When that keeps happening, the previously requested reading is given without waiting.
    std::optional<SupplyReadings> read(bool looksAgain);

    /// Sets what is called from the main loop once an abandoned reading has arrived after all: the next
    /// `read` gives it.
    void setLateObserver(std::function<void()> arrived);

private:
    using Clock = std::chrono::steady_clock;

    std::chrono::milliseconds patience() const;
    std::optional<SupplyReadings> takeLate();
    std::optional<SupplyReadings> takeArrived();
    std::nullopt_t giveUp();
    std::optional<SupplyReadings> accept(std::optional<SupplyReadings> readings);
    bool request();

    std::string m_folder;
    SupplyFolder::Scope m_scope;
    ReadFunction m_read;
    ReadingPatience m_patience;
    SupplyFolder::KnownKinds m_kinds;
    std::shared_ptr<SlowFiles> m_slowFiles;
    std::shared_ptr<ReadingThread> m_thread; ///< the one that is not stuck
    bool m_looksAgain = false;
    bool m_hasAnswered = false;
    bool m_wasLate = false;
    bool m_hasArrived = false;      ///< a late reading, and nobody has asked since
    Clock::time_point m_restsUntil; ///< before that no reading begins, after a late one
    const std::shared_ptr<LateBell> m_bell = std::make_shared<LateBell>();
};

} // namespace quindle
