#pragma once

#include <QStringView>

namespace quindle {

/// The capacity in mAh that the manufacturer states for exactly this model identifier; 0 for a model that is
/// not listed.
qint64 ratedCapacity(QStringView macModel);

} // namespace quindle
