#pragma once

#include "platform/Host.h"

namespace quindle {

/// The system's clock.
class LinuxClock final : public Clock
{
public:
    QDateTime now() const override;
};

} // namespace quindle
