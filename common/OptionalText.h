#pragma once

#include <optional>

#include <QString>
#include <QVariant>

namespace quindle {

/// A text that may be missing as a value read by key: a missing one is the invalid value, unlike an empty
/// one.
inline QVariant variantFromOptional(const std::optional<QString>& text)
{
    return text ? QVariant(*text) : QVariant();
}

} // namespace quindle
