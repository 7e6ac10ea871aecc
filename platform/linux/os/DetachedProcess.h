#pragma once

#include <QByteArray>
#include <QList>

namespace quindle {

/// Starts a program (an absolute path and arguments, as the bytes they are) in a session of its own; it is
/// nobody's child, so nobody has to wait for it. False when it cannot be run.
bool startDetached(const QList<QByteArray>& command);

} // namespace quindle
