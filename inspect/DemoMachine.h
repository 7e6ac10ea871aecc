#pragma once

#include <QVariantMap>

namespace quindle {

class QDMac;

/// A computer's model turned back into the keys of a machine file: the demonstration computer has no registry
/// to capture. Figures that only exist rounded (temperature, power, health) come back as close as possible.
QVariantMap keysFromModel(const QDMac& mac);

} // namespace quindle
