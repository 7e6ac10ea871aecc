#pragma once

#include <map>
#include <string>

#include "platform/linux/power/SupplyAttributes.h"

namespace quindle {

/// A supply whose attributes a test writes down.
class MapAttributes final : public SupplyAttributes
{
public:
    using Texts = std::map<std::string, std::string>;

    MapAttributes(std::initializer_list<Texts::value_type> texts)
        : m_texts(texts)
    {
    }
    explicit MapAttributes(Texts texts)
        : m_texts(std::move(texts))
    {
    }

    std::optional<double> number(Attribute attribute) const override
    {
        const auto found = text(attribute);
        return found ? numberFromText(*found) : std::nullopt;
    }

    std::optional<std::string_view> text(Attribute attribute) const override
    {
        const auto found = m_texts.find(attributeName(attribute));
        return found == m_texts.end() ? std::nullopt : std::optional<std::string_view>(found->second);
    }

private:
    Texts m_texts;
};

} // namespace quindle
