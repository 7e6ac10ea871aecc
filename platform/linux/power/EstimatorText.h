#pragma once

#include <optional>

#include <QByteArray>

#include "platform/linux/power/TimeEstimator.h"

/// What a TimeEstimator remembers as a text of a few kilobytes, for another process on the same clock.
namespace quindle {

/// The state and those samples that decide: the first one and those of the last minute.
QByteArray estimatorText(const TimeEstimator::Memory& memory);

/// Nothing for any other text, and for samples that are not in the order of time.
std::optional<TimeEstimator::Memory> estimatorMemoryFrom(const QByteArray& text);

} // namespace quindle
