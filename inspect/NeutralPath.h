#pragma once

#include <QString>

namespace quindle {

/// A path without the name of the user whose computer it is from: `home` (empty when not known) becomes
/// "/home/user", and so does the name after a folder in which systems keep homes or mount a user's disks
/// ("/Users/jane/Applications" gives "/Users/user/Applications"), wherever the process itself is at home.
QString neutralPath(const QString& path, const QString& home);

} // namespace quindle
