#pragma once

#include <chrono>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/supplies/FolderWatch.h"
#include "platform/linux/supplies/StillSupplies.h"

namespace quindle {

/// Whether anything has changed that a refresh reads: the supplies and the files of the settings. `begin` and
/// `isStill` belong to one thread, which may hang in them.
class ComputerStillness
{
public:
    ComputerStillness(std::string supplies, std::string settings);

    /// False where changes cannot be seen; see StillSupplies. So too where a settings file is a link: its
    /// target may be anywhere.
    bool begin();

    bool isStill();

    /// The moments at which nothing had changed, in order, by timeSinceBoot; each is given once. Any thread.
    std::vector<std::chrono::milliseconds> takeMoments();

private:
    bool watchSettings();

    const std::string m_settingsFolder;
    StillSupplies m_supplies;
    std::optional<FolderWatch> m_settings;
    std::mutex m_mutex;
    std::vector<std::chrono::milliseconds> m_moments; ///< of the mutex
};

} // namespace quindle
