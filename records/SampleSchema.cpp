#include "records/SampleSchema.h"

namespace quindle {

namespace {

// A moment has one sample at most. States and sources are numbers of their enumerations, so those only grow
// at the end.
constexpr const char* firstVersion =
    "BEGIN IMMEDIATE;"
    "CREATE TABLE samples ("
    "    moment INTEGER PRIMARY KEY," // seconds since 1970
    "    charge REAL NOT NULL,"       // percent
    "    power REAL,"                 // watts, negative while discharging; null where it is not known
    "    state INTEGER NOT NULL,"
    "    source INTEGER NOT NULL,"
    "    span INTEGER NOT NULL);" // seconds that it is the mean of; 0 as it was taken
    "CREATE TABLE notes (name TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID;"
    "PRAGMA user_version = 1;"
    "COMMIT;";

} // namespace

std::optional<qint64> schemaVersion(Database& database)
{
    return database.integer("PRAGMA user_version");
}

bool makeSchema(Database& database, qint64 from)
{
    // With a journal beside the file, readers do not wait for writers. It reaches the disk when it is merged
    // into the file: a power cut may cost the last samples, a crash none.
    return database.run("PRAGMA journal_mode = WAL") && database.run("PRAGMA synchronous = NORMAL") &&
           (from == newestSchema || database.run(firstVersion));
}

} // namespace quindle
