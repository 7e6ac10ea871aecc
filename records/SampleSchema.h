#pragma once

#include <optional>

#include "records/Database.h"

/// The tables of the samples' database.
namespace quindle {

inline constexpr qint64 newestSchema = 1;

/// The version that the file says it has; 0 for an empty one. Nothing when it cannot be read.
std::optional<qint64> schemaVersion(Database& database);

/// Brings a database of version `from` to the newest one, and sets how it is written. False after a failure.
bool makeSchema(Database& database, qint64 from);

} // namespace quindle
