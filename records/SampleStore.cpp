#include "records/SampleStore.h"

#include <limits>

#include "records/Thinning.h"

namespace quindle {

namespace {

bool insert(Database& database, const std::vector<StoredSample>& samples)
{
    // The first at a moment stays: what is taken over from elsewhere comes later, and twice after a crash.
    Statement statement = database.statement("INSERT OR IGNORE INTO samples VALUES (?, ?, ?, ?, ?, ?)");
    for (const StoredSample& stored : samples) {
        const Sample& sample = stored.sample;
        statement.bind(1, sample.moment);
        statement.bind(2, sample.charge);
        if (sample.power)
            statement.bind(3, *sample.power);
        else
            statement.bindNull(3);
        statement.bind(4, static_cast<qint64>(sample.state));
        statement.bind(5, static_cast<qint64>(stored.source));
        statement.bind(6, stored.span);
        if (!statement.run())
            return false;
    }
    return statement.isGood();
}

/// A later version may know more states than this one.
SampleState stateOf(qint64 number)
{
    return number >= 0 && number < static_cast<qint64>(SampleState::Unknown)
               ? static_cast<SampleState>(number)
               : SampleState::Unknown;
}

StoredSample storedIn(const Statement& row)
{
    StoredSample stored;
    stored.sample.moment = row.integer(0);
    stored.sample.charge = row.real(1);
    if (!row.isNull(2))
        stored.sample.power = row.real(2);
    stored.sample.state = stateOf(row.integer(3));
    stored.source = row.integer(4) == 0 ? SampleSource::Helper : SampleSource::UPower;
    stored.span = row.integer(5);
    return stored;
}

bool select(Database& database, qint64 from, qint64 to, std::vector<StoredSample>& samples)
{
    Statement statement = database.statement("SELECT moment, charge, power, state, source, span FROM samples "
                                             "WHERE moment BETWEEN ? AND ? ORDER BY moment");
    statement.bind(1, from);
    statement.bind(2, to);
    samples.clear();
    while (statement.step())
        samples.push_back(storedIn(statement));
    return statement.isGood();
}

bool removeBetween(Database& database, qint64 from, qint64 to)
{
    Statement statement = database.statement("DELETE FROM samples WHERE moment BETWEEN ? AND ?");
    statement.bind(1, from);
    statement.bind(2, to);
    return statement.run();
}

/// The first sample before `before` that stands for less than `span` seconds. False after a failure; no
/// moment when all is done.
bool findFirstToThin(Database& database, qint64 before, qint64 span, std::optional<qint64>& moment)
{
    Statement statement = database.statement("SELECT min(moment) FROM samples WHERE moment < ? AND span < ?");
    statement.bind(1, before);
    statement.bind(2, span);
    if (statement.step() && !statement.isNull(0))
        moment = statement.integer(0);
    return statement.isGood();
}

/// Samples before `before` become values of `span` seconds, if they are not.
bool thinBefore(Database& database, qint64 before, qint64 span, qint64 now)
{
    std::optional<qint64> first;
    if (!findFirstToThin(database, before, span, first))
        return false;
    if (!first)
        return true;
    // From the start of a span, because its value may be there already when one of its samples comes late.
    const qint64 from = *first - *first % span;
    std::vector<StoredSample> samples;
    return select(database, from, before - 1, samples) && removeBetween(database, from, before - 1) &&
           insert(database, thinned(samples, now));
}

} // namespace

QString historyFile(const QString& applicationSupportDirectory)
{
    return applicationSupportDirectory + QStringLiteral("/history.sqlite");
}

SampleStore::SampleStore(const QString& path)
    : m_file(path)
{
}

StoreOutcome SampleStore::append(const std::vector<Sample>& samples, SampleSource source)
{
    std::vector<StoredSample> stored;
    stored.reserve(samples.size());
    for (const Sample& sample : samples)
        stored.push_back({.sample = sample, .source = source, .span = 0});
    return m_file.change([&stored](Database& database) { return insert(database, stored); });
}

std::vector<Sample> SampleStore::samplesBetween(qint64 from, qint64 to, StoreOutcome* outcome)
{
    std::vector<Sample> samples;
    for (const StoredSample& stored : storedBetween(from, to, outcome))
        samples.push_back(stored.sample);
    return samples;
}

std::vector<StoredSample> SampleStore::storedBetween(qint64 from, qint64 to, StoreOutcome* outcome)
{
    std::vector<StoredSample> samples;
    const StoreOutcome looked =
        m_file.look([&](Database& database) { return select(database, from, to, samples); });
    if (outcome)
        *outcome = looked;
    // What was read before a fault is not used.
    return looked.isGood() ? samples : std::vector<StoredSample>();
}

std::optional<qint64> SampleStore::firstMoment()
{
    std::optional<qint64> found;
    m_file.look([&](Database& database) {
        found = database.integer("SELECT min(moment) FROM samples");
        return true;
    });
    return found;
}

StoreOutcome SampleStore::thin(qint64 now)
{
    // Values made of damaged rows would look sound for ever.
    StoreOutcome checked = m_file.check();
    if (!checked.isGood() || !checked.notice.isEmpty())
        return checked;
    // The oldest first: what becomes a value of a day need not become values of hours first.
    return m_file.change([now](Database& database) {
        return thinBefore(database, dailyBefore(now), secondsOfDay, now) &&
               thinBefore(database, hourlyBefore(now), secondsOfHour, now);
    });
}

StoreOutcome SampleStore::removeBefore(qint64 moment)
{
    return m_file.change([moment](Database& database) {
        return removeBetween(database, std::numeric_limits<qint64>::min(), moment - 1);
    });
}

StoreOutcome SampleStore::removeAll()
{
    // Deleted rows stay readable in the file until it is rewritten, and in the journal until that is
    // truncated.
    const StoreOutcome removed = m_file.look([](Database& database) {
        // In no transaction: a file cannot be rewritten within one.
        return database.run("DELETE FROM samples") && database.run("VACUUM") &&
               database.run("PRAGMA wal_checkpoint(TRUNCATE)");
    });
    return removed.isGood() ? m_file.removeDamaged() : removed;
}

std::optional<QByteArray> SampleStore::note(const QByteArray& name, StoreOutcome* outcome)
{
    std::optional<QByteArray> value;
    const StoreOutcome looked = m_file.look([&](Database& database) {
        Statement statement = database.statement("SELECT value FROM notes WHERE name = ?");
        statement.bind(1, name);
        if (statement.step())
            value = statement.text(0);
        return statement.isGood();
    });
    if (outcome)
        *outcome = looked;
    return value;
}

StoreOutcome SampleStore::setNote(const QByteArray& name, const QByteArray& value)
{
    return m_file.change([&](Database& database) {
        Statement statement = database.statement("INSERT OR REPLACE INTO notes VALUES (?, ?)");
        statement.bind(1, name);
        statement.bind(2, value);
        return statement.run();
    });
}

} // namespace quindle
