#pragma once

#include <optional>

#include <QByteArray>

namespace quindle {

/// The first 64 KiB of a regular file; nothing when it is something else or cannot be read. Never waits for a
/// pipe or device in the file's place.
std::optional<QByteArray> readSmallFile(const QString& path);

} // namespace quindle
