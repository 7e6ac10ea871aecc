#pragma once

#include <optional>

#include "records/Database.h"
#include "samples/Sample.h"

/// The tables of the samples' database.
namespace quindle {

enum class SampleSource {
    Helper, ///< taken by the helper of this system
    UPower, ///< taken over from the history that UPower had kept before
};

/// A sample as the history keeps it.
struct StoredSample
{
    Sample sample;
    SampleSource source = SampleSource::Helper;
    qint64 span = 0; ///< seconds from its moment on that it is the mean of; 0 for one as it was taken

    bool operator==(const StoredSample& other) const = default;
};

inline constexpr qint64 newestSchema = 1;

/// The version that the file says it has; 0 for an empty one. Nothing when it cannot be read.
std::optional<qint64> schemaVersion(Database& database);

/// Brings a database of version `from` to the newest one, and sets how it is written. False after a failure.
bool makeSchema(Database& database, qint64 from);

} // namespace quindle
