#include "records/Database.h"

#include <cerrno>

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct DatabaseTest : testing::Test
{
    DatabaseTest()
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_TRUE(open(database));
        EXPECT_TRUE(database.run("CREATE TABLE numbers (number INTEGER)"));
    }

    bool open(Database& other) const { return other.open(QFile::encodeName(path), 0); }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("database"));
    Database database;
};

TEST_F(DatabaseTest, StatementsRunAgainWithOtherValues)
{
    Statement insert = database.statement("INSERT INTO numbers VALUES (?)");
    for (qint64 number = 0; number < 3; ++number) {
        insert.bind(1, number);
        EXPECT_TRUE(insert.run());
    }
    EXPECT_EQ(database.integer("SELECT sum(number) FROM numbers"), 3);
    EXPECT_EQ(database.integer("SELECT number FROM numbers WHERE number > 5"), std::nullopt);
    Statement wrong = database.statement("INSERT INTO nothing VALUES (?)");
    EXPECT_FALSE(wrong.run());
    EXPECT_FALSE(wrong.isGood());
}

TEST_F(DatabaseTest, AFullDiskIsReported)
{
    database.run("PRAGMA max_page_count = 2");
    bool isTaken = true;
    for (int number = 0; isTaken && number < 10'000; ++number)
        isTaken = database.run("INSERT INTO numbers VALUES (1)");
    ASSERT_FALSE(isTaken);
    EXPECT_EQ(database.fault().error, ENOSPC);
    EXPECT_EQ(database.fault().reason, QStringLiteral("No space left on device"));
    EXPECT_FALSE(database.fault().isDamage);
}

TEST_F(DatabaseTest, AnotherProgramsLockIsReported)
{
    Database other;
    ASSERT_TRUE(open(other) && other.run("BEGIN IMMEDIATE"));
    EXPECT_FALSE(database.run("BEGIN IMMEDIATE"));
    EXPECT_EQ(database.fault().error, EAGAIN);
    EXPECT_EQ(database.fault().reason, QStringLiteral("another program keeps it locked"));
}

TEST_F(DatabaseTest, WhatMayNotBeWrittenIsReported)
{
    database.run("PRAGMA query_only = 1");
    EXPECT_FALSE(database.run("INSERT INTO numbers VALUES (1)"));
    EXPECT_EQ(database.fault().error, EACCES);
    EXPECT_EQ(database.fault().reason, QStringLiteral("Permission denied"));
}

TEST_F(DatabaseTest, DamageIsReported)
{
    database.close();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no database");
    file.close();
    Database damaged;
    EXPECT_FALSE(open(damaged) && damaged.integer("PRAGMA user_version"));
    EXPECT_TRUE(damaged.fault().isDamage);
}

TEST_F(DatabaseTest, WhatSqliteAloneKnowsIsInItsWords)
{
    EXPECT_FALSE(database.run("nonsense"));
    EXPECT_EQ(database.fault().error, EIO);
    EXPECT_EQ(database.fault().reason, QStringLiteral("near \"nonsense\": syntax error"));
}

} // namespace
