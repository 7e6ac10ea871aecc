#pragma once

#include <optional>

#include <QString>

namespace quindle {

class Bundle;

/// The operating system's marketing name for a version such as "10.11.6"; "OS X" for an unknown one.
QString osxVersionName(const QString& productVersion);

/// The version of this program as the bundle's information states it ("CFBundleShortVersionString"), in its
/// textual form; nothing where it is not stated.
std::optional<QString> shortVersion(const Bundle& bundle);

} // namespace quindle
