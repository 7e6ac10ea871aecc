#pragma once

#include <QVariantMap>

#include "tests/support/Texts.h"

namespace quindle {

/// A dictionary of one key.
inline QVariantMap one(const char* key, const QVariant& value)
{
    return {{latin(key), value}};
}

} // namespace quindle
