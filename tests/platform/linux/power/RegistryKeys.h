#pragma once

#include <QString>

namespace quindle {

inline const QString chargeKey = QStringLiteral("CurrentCapacity");
inline const QString cyclesKey = QStringLiteral("CycleCount");
inline const QString timeToEmptyKey = QStringLiteral("AvgTimeToEmpty");

} // namespace quindle
