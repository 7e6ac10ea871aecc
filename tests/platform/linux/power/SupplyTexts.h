#pragma once

#include <map>
#include <string>

#include "platform/linux/supplies/SupplyReading.h"

namespace quindle {

/// Attributes by their files' names, as a test writes them down.
using SupplyTexts = std::map<std::string, std::string>;

inline SupplyAttributes attributesFrom(const SupplyTexts& texts)
{
    SupplyAttributes attributes;
    for (std::size_t index = 0; index < attributeCount; ++index) {
        const auto attribute = static_cast<Attribute>(index);
        if (const auto found = texts.find(attributeName(attribute)); found != texts.end())
            attributes.set(attribute, found->second);
    }
    return attributes;
}

inline SupplyReading readingFrom(SupplyKind kind, const SupplyTexts& texts)
{
    return {"supply", kind, attributesFrom(texts), {}};
}

} // namespace quindle
