#pragma once

#include <optional>

#include <QDateTime>
#include <QString>
#include <QVariant>

/// What tells snapshot records apart. Records may come from other programs, so any value may be missing or of
/// another type.
namespace quindle {

/// When the record was made, UTC; nothing when it does not say.
std::optional<QDateTime> snapshotDate(const QVariant& record);

/// Which battery it is of; empty when it does not say.
QString snapshotBattery(const QVariant& record);

} // namespace quindle
