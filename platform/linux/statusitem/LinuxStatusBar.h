#pragma once

#include "platform/StatusBar.h"
#include "platform/linux/statusitem/LinuxStatusItem.h"

namespace quindle {

/// The tray of the desktop session that the program runs in.
class LinuxStatusBar final : public StatusBar
{
public:
    /// The loop must outlive it and its items.
    LinuxStatusBar(RunLoop& runLoop, StatusItemSurroundings surroundings);

    /// Hosts decide on the width, so the length has no effect here.
    std::unique_ptr<StatusItem> statusItemWithLength(double length) override;

private:
    RunLoop& m_runLoop;
    StatusItemSurroundings m_surroundings;
    int m_items = 0;
};

} // namespace quindle
