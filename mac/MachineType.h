#pragma once

#include <QString>

namespace quindle {

/// The machine type of a model identifier, e.g. "MacBook Air"; empty for an unknown one.
QString machineType(const QString& model);

} // namespace quindle
