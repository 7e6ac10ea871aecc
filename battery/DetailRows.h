#pragma once

#include <vector>

#include <QVariantMap>

namespace quindle {

class PowerSources;

/// What the power-source service says about each source, in its order. A service or a source that cannot be
/// asked is fatal: the program runs only where there are power sources.
std::vector<QVariantMap> describePowerSources(PowerSources& powerSources);

/// A description's value as text: "NO" and "YES" for numbers equal to 0 and 1, whatever their type, else its
/// ordinary description.
QString detailText(const QVariant& value);

/// A description with all its values as texts.
QVariantMap detailRow(const QVariantMap& description);

} // namespace quindle
