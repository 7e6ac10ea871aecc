#pragma once

#include "samples/Sample.h"

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

} // namespace quindle
