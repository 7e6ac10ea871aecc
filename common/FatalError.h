#pragma once

#include <QStringView>

namespace quindle {

/// Ends the program after a broken invariant or a forced conversion that failed: writes one line,
/// "quindle: fatal: " and the message (with the bytes of paths, see Paths.h), to standard error and aborts.
/// Never for anything a user can cause by ordinary use.
[[noreturn]] void fatalError(QStringView message);

} // namespace quindle
