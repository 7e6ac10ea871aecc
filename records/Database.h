#pragma once

#include <memory>
#include <optional>

#include <QByteArray>
#include <QString>

struct sqlite3;
struct sqlite3_stmt;

namespace quindle {

/// Why SQLite could not do something.
struct DatabaseFault
{
    bool isDamage = false; ///< of the file's contents
    int error = 0;         ///< errno's value, where the system gave one
    QString reason;        ///< in words
};

/// One command to a database. What is bound must live as long as the steps that use it.
class Statement
{
public:
    Statement(sqlite3* database, const char* sql);

    void bind(int index, qint64 value);
    void bind(int index, double value);
    void bind(int index, const QByteArray& text);
    void bindNull(int index);

    /// Runs it to its next row. False at the end and after a failure; `isGood` says which.
    bool step();

    /// Runs it, once more if it was run before. False after a failure.
    bool run();

    bool isGood() const { return m_isGood; }

    qint64 integer(int column) const;
    double real(int column) const;
    QByteArray text(int column) const;
    bool isNull(int column) const;

private:
    struct Finalize
    {
        void operator()(sqlite3_stmt* statement) const;
    };

    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
    bool m_isGood;
};

/// An open SQLite database, or none.
class Database
{
public:
    Database() = default;

    /// Opens a file that exists (path in the file system's encoding). Waits for other programs for up to
    /// `patience` milliseconds at each command.
    bool open(const QByteArray& path, int patience);
    void close() { m_database.reset(); }
    bool isOpen() const { return m_database != nullptr; }

    bool run(const char* sql);
    Statement statement(const char* sql) { return {m_database.get(), sql}; }

    /// The first column of the first row; nothing when there is none, and after a failure.
    std::optional<qint64> integer(const char* sql);

    /// Of the last command that failed.
    DatabaseFault fault() const;

private:
    struct Close
    {
        void operator()(sqlite3* database) const;
    };

    std::unique_ptr<sqlite3, Close> m_database;
};

} // namespace quindle
