#pragma once

#include <QString>

namespace quindle {

/// The path without its last component, by the platform's rules: "/a/b" gives "/a", "/a/" and "/" give "/", a
/// relative single name and the empty text give the empty text.
QString pathWithoutLastComponent(const QString& path);

/// The path with a leading "~" replaced by the user's home folder; "~name" is left as it is.
QString pathWithTildeExpanded(const QString& path);

} // namespace quindle
