#pragma once

#include "platform/PowerEvents.h"

namespace quindle {

/// A recorded computer changes by its steps only, and those refresh by themselves.
class RecordedPowerEvents : public PowerEvents
{
public:
    void setObserver(std::function<void()> /*observer*/) override {}
};

} // namespace quindle
