#pragma once

#include <optional>
#include <vector>

#include "records/SampleFile.h"
#include "records/SampleSchema.h"
#include "records/StoreOutcome.h"

namespace quindle {

/// The file of the samples inside the user's Application Support directory.
QString historyFile(const QString& applicationSupportDirectory);

/// The history of charge and power: an SQLite database that only this user may read. Several processes may
/// use it at once; one object is for one thread. Moments are seconds since 1970, UTC.
class SampleStore
{
public:
    /// Nothing is opened or made before it is needed.
    explicit SampleStore(const QString& path);

    const QString& path() const { return m_file.path(); }

    /// Adds samples in any order. Of several with one moment the first one stays.
    StoreOutcome append(const std::vector<Sample>& samples, SampleSource source = SampleSource::Helper);

    /// The samples from one moment to another, both included, sorted. Empty when there are none, when there
    /// is no file and when it cannot be read: `outcome` says why.
    std::vector<Sample> samplesBetween(qint64 from, qint64 to, StoreOutcome* outcome = nullptr);
    std::vector<StoredSample> storedBetween(qint64 from, qint64 to, StoreOutcome* outcome = nullptr);

    /// The moment of the first sample; nothing when there is none.
    std::optional<qint64> firstMoment();

    /// Looks for damage, and makes old samples coarser (see Thinning.h).
    StoreOutcome thin(qint64 now);

    StoreOutcome removeBefore(qint64 moment);

    /// Leaves no trace of any sample in the files, nor of those that were damaged and set aside. Notes stay.
    StoreOutcome removeAll();

    /// A text stored under a name, such as when a rare task was last done. `outcome` says why it cannot be
    /// read, and what became of a damaged file.
    std::optional<QByteArray> note(const QByteArray& name, StoreOutcome* outcome = nullptr);
    StoreOutcome setNote(const QByteArray& name, const QByteArray& value);

private:
    SampleFile m_file;
};

} // namespace quindle
