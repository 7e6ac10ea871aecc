#include "records/Database.h"

#include <cerrno>
#include <sqlite3.h>

namespace quindle {

Statement::Statement(sqlite3* database, const char* sql)
{
    sqlite3_stmt* statement = nullptr;
    m_isGood = sqlite3_prepare_v2(database, sql, -1, &statement, nullptr) == SQLITE_OK;
    m_statement.reset(statement);
}

void Statement::bind(int index, qint64 value)
{
    sqlite3_bind_int64(m_statement.get(), index, value);
}

void Statement::bind(int index, double value)
{
    sqlite3_bind_double(m_statement.get(), index, value);
}

void Statement::bind(int index, const QByteArray& text)
{
    // Not copied: the caller keeps a text that it binds until the statement has run.
    sqlite3_bind_text(m_statement.get(), index, text.constData(), static_cast<int>(text.size()),
                      SQLITE_STATIC);
}

void Statement::bindNull(int index)
{
    sqlite3_bind_null(m_statement.get(), index);
}

bool Statement::step()
{
    if (!m_isGood)
        return false;
    const int result = sqlite3_step(m_statement.get());
    m_isGood = result == SQLITE_ROW || result == SQLITE_DONE;
    return result == SQLITE_ROW;
}

bool Statement::run()
{
    while (step()) {
    }
    // Resetting repeats the failure of the step, which is known already.
    sqlite3_reset(m_statement.get());
    return m_isGood;
}

qint64 Statement::integer(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

double Statement::real(int column) const
{
    return sqlite3_column_double(m_statement.get(), column);
}

QByteArray Statement::text(int column) const
{
    // In this order, as the length is that of the text that was asked for last.
    const unsigned char* text = sqlite3_column_text(m_statement.get(), column);
    return QByteArray(reinterpret_cast<const char*>(text), sqlite3_column_bytes(m_statement.get(), column));
}

bool Statement::isNull(int column) const
{
    return sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL;
}

void Statement::Finalize::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

bool Database::open(const QByteArray& path, int patience)
{
    sqlite3* database = nullptr;
    // Without locks of its own: a connection belongs to one thread.
    const int result =
        sqlite3_open_v2(path.constData(), &database,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    // There is one even after a failure; it knows the reason.
    m_database.reset(database);
    sqlite3_busy_timeout(database, patience);
    return result == SQLITE_OK;
}

bool Database::run(const char* sql)
{
    return sqlite3_exec(m_database.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

std::optional<qint64> Database::integer(const char* sql)
{
    Statement query = statement(sql);
    if (!query.step() || query.isNull(0))
        return std::nullopt;
    return query.integer(0);
}

DatabaseFault Database::fault() const
{
    // SQLite forgets the system's reason for a failure at the end of a transaction; errno still has it.
    const int latest = errno;
    const int code = sqlite3_errcode(m_database.get());
    const int known = sqlite3_system_errno(m_database.get());
    const int error = known != 0 || (code & 0xff) != SQLITE_IOERR ? known : latest;
    switch (code & 0xff) {
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return {.isDamage = true, .error = EIO, .reason = QStringLiteral("the database is damaged")};
    case SQLITE_BUSY:
        return {
            .isDamage = false, .error = EAGAIN, .reason = QStringLiteral("another program keeps it locked")};
    case SQLITE_FULL:
        return {.isDamage = false, .error = ENOSPC, .reason = qt_error_string(ENOSPC)};
    case SQLITE_READONLY:
        return {.isDamage = false, .error = EACCES, .reason = qt_error_string(error != 0 ? error : EACCES)};
    default:
        return {.isDamage = false,
                .error = error != 0 ? error : EIO,
                .reason = error != 0 ? qt_error_string(error)
                                     : QString::fromUtf8(sqlite3_errmsg(m_database.get()))};
    }
}

void Database::Close::operator()(sqlite3* database) const
{
    // While a statement is left it closes only with that.
    sqlite3_close_v2(database);
}

} // namespace quindle
