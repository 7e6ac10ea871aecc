#include "platform/linux/statusitem/TrayRestart.h"

#include <algorithm>

namespace quindle {

namespace {

constexpr std::chrono::seconds longestPause(300);
constexpr int mostDoublings = 9; // beyond the longest pause

} // namespace

int failuresAfter(int failures, std::chrono::milliseconds run)
{
    return run < stayingRun ? failures + 1 : 0;
}

std::chrono::seconds pauseAfter(int failures)
{
    // One that was killed, as by a panel's crash, should be back before anybody misses it.
    if (failures < 2)
        return std::chrono::seconds(0);
    return std::min(longestPause, std::chrono::seconds(1 << std::min(failures - 2, mostDoublings)));
}

bool logsFailure(int failures)
{
    return failures == 3;
}

} // namespace quindle
