#pragma once

#include <QString>

namespace quindle {

/// A manufacturer as the battery reports it, with the codes "DP" and "SMP" written out wherever they occur.
QString manufacturerName(QString reported);

} // namespace quindle
