#pragma once

#include "platform/linux/power/Battery.h"
#include "platform/linux/supplies/SupplyAttributes.h"

/// What the attributes of one battery mean. Plain functions.
namespace quindle {

Battery batteryFrom(const SupplyAttributes& attributes);

/// Whether the battery is ready: a driver that gives neither a full charge nor a percentage has not heard
/// from its battery yet (as on a ThinkPad X13s, for the first seconds after the start).
bool isReady(const Battery& battery);

/// The text of an attribute as a person can read it (see readableText).
std::optional<QString> readableAttribute(const SupplyAttributes& supply, Attribute attribute);

} // namespace quindle
