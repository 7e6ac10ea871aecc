#include "platform/linux/ComputerStillness.h"

#include <memory>
#include <utility>

#include <dirent.h>

#include "platform/linux/os/MonotonicClock.h"
#include "platform/posix/FileDescriptor.h"

namespace quindle {

ComputerStillness::ComputerStillness(std::string supplies, std::string settings)
    : m_settingsFolder(std::move(settings))
    , m_supplies(std::move(supplies))
{
}

bool ComputerStillness::begin()
{
    return watchSettings() && m_supplies.begin();
}

bool ComputerStillness::watchSettings()
{
    m_settings.reset();
    const std::unique_ptr<DIR, CloseFolder> folder(opendir(m_settingsFolder.c_str()));
    if (!folder)
        return false;
    m_settings.emplace();
    if (!m_settings->add(dirfd(folder.get()), "."))
        return false;
    while (const dirent* const entry = readdir(folder.get()))
        if (entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN)
            return false;
    return true;
}

bool ComputerStillness::isStill()
{
    if (!m_settings || m_settings->hasChanged() || !m_supplies.isStill()) {
        m_settings.reset();
        return false;
    }
    const std::scoped_lock lock(m_mutex);
    m_moments.push_back(timeSinceBoot());
    return true;
}

std::vector<std::chrono::milliseconds> ComputerStillness::takeMoments()
{
    const std::scoped_lock lock(m_mutex);
    return std::exchange(m_moments, {});
}

} // namespace quindle
