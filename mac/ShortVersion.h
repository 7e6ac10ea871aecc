#pragma once

#include <optional>

#include <QString>

namespace quindle {

class Bundle;

/// The version of this program as the bundle's information states it ("CFBundleShortVersionString"), in its
/// textual form; nothing where it is not stated.
std::optional<QString> shortVersion(const Bundle& bundle);

} // namespace quindle
