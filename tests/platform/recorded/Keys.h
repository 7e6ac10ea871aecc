#pragma once

#include <QVariantMap>

namespace quindle {

inline QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

/// A dictionary of one key.
inline QVariantMap one(const char* key, const QVariant& value)
{
    return {{latin(key), value}};
}

} // namespace quindle
