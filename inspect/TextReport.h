#pragma once

#include <QVariantMap>

namespace quindle {

/// A state (see JsonState.h) in aligned lines for a person. Rows without anything to tell are left out.
QString reportText(const QVariantMap& state);

} // namespace quindle
