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
    EXPECT_EQ(lines, QStringList{archive() + QStringLiteral(": it is not the property list of an archive")});
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

TEST_F(ExportCommandTest, SamplesFromADayOn)
{
    const auto samples = [this](const ExportOptions& options) {
        QBuffer buffer(&written);
        buffer.open(QIODevice::WriteOnly | QIODevice::Truncate);
        return exportSamples(computer.platform, options, buffer, report());
    };
    EXPECT_EQ(samples({}), EX_NOINPUT);
    EXPECT_EQ(lines, QStringList{database() + QStringLiteral(": nothing has been recorded yet")});
    SampleStore(database()).append({sampleAt(1000, 60), sampleAt(2000, 59)});
    EXPECT_EQ(samples({}), EX_OK);
    EXPECT_EQ(written.count("\r\n"), 3);
    EXPECT_EQ(samples({.since = QDateTime::fromSecsSinceEpoch(1500)}), EX_OK);
    EXPECT_EQ(written, "Moment,Charge,Power,State\r\n1970-01-01T00:33:20Z,59.00,-8.50,discharging\r\n");
    EXPECT_EQ(samples({.format = ExportFormat::Json}), EX_OK);
    EXPECT_TRUE(written.startsWith("[\n{"));
}

TEST_F(ExportCommandTest, ADamagedDatabaseIsNoEmptyTable)
{
    write(database(), QByteArray("no database ").repeated(1000));
    QBuffer buffer(&written);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_EQ(exportSamples(computer.platform, {}, buffer, report()), EX_DATAERR);
    EXPECT_EQ(written, QByteArray());
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines[0].contains(database()));
}

TEST(ExportFormats, ByTheirNames)
{
    EXPECT_EQ(exportFormatNamed(QStringLiteral("csv")), ExportFormat::Csv);
    EXPECT_EQ(exportFormatNamed(QStringLiteral("json")), ExportFormat::Json);
    EXPECT_EQ(exportFormatNamed(QStringLiteral("CSV")), std::nullopt);
    EXPECT_EQ(exportFormatNamed(QString()), std::nullopt);
}

} // namespace
