#pragma once

#include "platform/StatusBar.h"
#include "platform/linux/statusitem/LinuxStatusItem.h"

namespace quindle {

/// The tray of the desktop session that the program runs in.
class LinuxStatusBar final : public StatusBar
{
public:
    explicit LinuxStatusBar(StatusItemSurroundings surroundings);

    /// Hosts decide on the width, so the length has no effect here.
    std::unique_ptr<StatusItem> statusItemWithLength(double length) override;

private:
    StatusItemSurroundings m_surroundings;
    int m_items = 0;
};

} // namespace quindle
