#pragma once

#include <vector>

#include <QVariantMap>

#include "facts/Fact.h"

namespace quindle {

/// A state (see JsonState.h) and the facts of the place Report in aligned lines for a person. Rows without a
/// value are left out.
QString reportText(const QVariantMap& state, const std::vector<Fact>& facts);

} // namespace quindle
