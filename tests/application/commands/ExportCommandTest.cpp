#include "application/commands/ExportCommand.h"

#include <sysexits.h>

#include <QFile>

#include "tests/application/commands/CommandCase.h"

using namespace quindle;

namespace {

struct ExportCommandTest : CommandCase
{
    int run(const ExportOptions& options = {})
    {
        QBuffer buffer(&written);
        buffer.open(QIODevice::WriteOnly);
        return exportHistory(computer.platform, options, buffer, report());
    }

    QByteArray written;
};

TEST_F(ExportCommandTest, WritesTheSnapshots)
{
    SnapshotArchive(archive()).append(recordAt(0));
    EXPECT_EQ(run(), EX_OK);
    EXPECT_TRUE(written.startsWith("Data.SnapshotDate,"));
    EXPECT_TRUE(written.contains("\r\n1970-01-01T00:00:00Z,1,"));
    EXPECT_EQ(run({.format = ExportFormat::Json}), EX_OK);
    EXPECT_TRUE(written.startsWith("[\n{"));
    EXPECT_EQ(lines, QStringList());
}

TEST_F(ExportCommandTest, ALongHistoryIsWhole)
{
    QVariantList records;
    for (qint64 day = 0; day < 3000; ++day)
        records.append(recordAt(day * 86'400));
    SnapshotArchive(archive()).merge(records);
    EXPECT_EQ(run(), EX_OK);
    EXPECT_EQ(written.count('\n'), 3001);
}

TEST_F(ExportCommandTest, NoArchiveIsNoInput)
{
    EXPECT_EQ(run(), EX_NOINPUT);
    EXPECT_EQ(written, QByteArray());
    EXPECT_EQ(lines, QStringList{archive() + QStringLiteral(": no snapshot has been saved yet")});
    computer.userDirectories.applicationSupport.clear();
    EXPECT_EQ(run(), EX_NOINPUT);
}

TEST_F(ExportCommandTest, ADamagedArchiveIsNamedAndStays)
{
    write(archive(), "damaged");
    EXPECT_EQ(run(), EX_DATAERR);
    EXPECT_EQ(lines, QStringList{archive() + QStringLiteral(": it is no property list of an archive")});
    EXPECT_EQ(bytesOf(archive()), "damaged");
}

TEST_F(ExportCommandTest, AFullDiskBehindTheOutputIsNoticed)
{
    SnapshotArchive(archive()).append(recordAt(0));
    QFile full(QStringLiteral("/dev/full"));
    ASSERT_TRUE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    EXPECT_EQ(exportHistory(computer.platform, {}, full, report()), EX_IOERR);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_EQ(lines[0], QStringLiteral("cannot write to standard output: No space left on device"));
}

TEST(ExportFormats, ByTheirNames)
{
    EXPECT_EQ(exportFormatNamed(QStringLiteral("csv")), ExportFormat::Csv);
    EXPECT_EQ(exportFormatNamed(QStringLiteral("json")), ExportFormat::Json);
    EXPECT_EQ(exportFormatNamed(QStringLiteral("CSV")), std::nullopt);
    EXPECT_EQ(exportFormatNamed(QString()), std::nullopt);
}

} // namespace
