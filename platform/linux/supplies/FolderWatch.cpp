#include "platform/linux/supplies/FolderWatch.h"

#include <array>
#include <string>

#include <sys/inotify.h>
#include <unistd.h>

namespace quindle {

FolderWatch::FolderWatch()
    : m_inotify(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
}

bool FolderWatch::add(int folder, const char* name)
{
    constexpr unsigned changes = IN_MODIFY | IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO;
    // inotify takes paths only. This one is the open folder, even if its own path leads elsewhere by now.
    const std::string path = "/proc/self/fd/" + std::to_string(folder) + '/' + name;
    return m_inotify.isOpen() && inotify_add_watch(m_inotify.get(), path.c_str(), changes | IN_ONLYDIR) >= 0;
}

bool FolderWatch::hasChanged()
{
    bool any = false;
    std::array<char, 4096> events{};
    while (m_inotify.isOpen() && read(m_inotify.get(), events.data(), events.size()) > 0)
        any = true;
    return any;
}

} // namespace quindle
