#pragma once

#include <optional>

#include <QString>

/// The two values of the computer's own registry entry ("IOPlatformExpertDevice"). Each read opens the entry
/// anew and releases it.
namespace quindle {

class IORegistry;

/// The model identifier: the bytes of "model" up to the first NUL. Nothing without entry or property, and for
/// bytes that are not UTF-8; a value that is not data is fatal.
std::optional<QString> readModelIdentifier(IORegistry& registry);

/// The serial number. Nothing without entry or property; a value that is not text is fatal.
std::optional<QString> readSerialNumber(IORegistry& registry);

} // namespace quindle
