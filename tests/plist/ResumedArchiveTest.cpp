#include <gtest/gtest.h>

#include <QDateTime>
#include <QFile>

#include "plist/KeyedArchive.h"
#include "plist/KeyedArchiver.h"
#include "tests/support/InventedHistory.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/TestData.h"

using namespace quindle;

namespace {

QVariantMap resumingRecord(qint64 number)
{
    return {
        {QStringLiteral("Data.SnapshotDate"), QDateTime::fromSecsSinceEpoch(1'700'000'000 + number, Qt::UTC)},
        {QStringLiteral("Battery.CycleCount"), number},
        {QStringLiteral("Battery.Health"), 0.5},
        {QStringLiteral("Computer"), QStringLiteral("Größe")},
        {QStringLiteral("Raw"), QVariantMap{{QStringLiteral("Cells"), QVariantList{number, qint64{2}}},
                                            {QStringLiteral("Empty"), QVariant()},
                                            {QStringLiteral("IsCharging"), true},
                                            {QStringLiteral("Data"), QByteArray("\x01\x02")}}},
    };
}

QVariantList resumingRecords(qint64 count)
{
    QVariantList records;
    for (qint64 number = 0; number < count; ++number)
        records.append(resumingRecord(number));
    return records;
}

/// Whether the archive reads as before with the record at its end, if it can be read.
bool growsOrIsDamaged(const QByteArray& archive, const QVariantMap& record)
{
    const ArchivedRecords before = recordsFromKeyedArchive(archive);
    if (!before.fault.isEmpty())
        return true;
    const ArchivedRecords after = recordsFromKeyedArchive(keyedArchiveWith(archive, record));
    return after.fault.isEmpty() && after.records == before.records + QVariantList{record};
}

TEST(ResumedArchive, GrowsToTheBytesOfAllRecordsAtOnce)
{
    QByteArray archive = keyedArchive({});
    for (qint64 count = 0; count < 50; ++count) {
        archive = keyedArchiveWith(archive, resumingRecord(count));
        ASSERT_EQ(archive, keyedArchive(resumingRecords(count + 1))) << count;
    }
}

TEST(ResumedArchive, ThatOfAnInventedLaptopGrowsToTheSameBytes)
{
    const QVariantList all = inventedSnapshots({.end = 1'795'370'400, .days = 400});
    for (const qsizetype count : {1, 2, 130, 200}) {
        const QByteArray before = keyedArchive(all.first(count));
        EXPECT_TRUE(KeyedArchiver().resume(PropertyListGraph(before))) << count;
        EXPECT_EQ(keyedArchiveWith(before, all[count].toMap()), keyedArchive(all.first(count + 1))) << count;
    }
}

/// More lists of keys than the writer remembers.
TEST(ResumedArchive, ManyListsOfKeysGrowToTheSameBytes)
{
    QVariantList records;
    for (int number = 0; number < 70; ++number)
        records.append(QVariantMap{{QStringLiteral("key %1").arg(number), qint64{number}}});
    const QByteArray before = keyedArchive(records);
    records.append(QVariantMap{{QStringLiteral("key 3"), qint64{3}}});
    EXPECT_EQ(keyedArchiveWith(before, records.constLast().toMap()), keyedArchive(records));
}

TEST(ResumedArchive, TextsThatReadersTakeForNothingComeBack)
{
    const QVariantMap record{{QStringLiteral("$null"), QStringLiteral("$null")},
                             {QStringLiteral("$class"), QStringLiteral("NSArray")}};
    const QByteArray archive = keyedArchiveWith(keyedArchive({record}), record);
    EXPECT_EQ(recordsFromKeyedArchive(archive).records, (QVariantList{record, record}));
}

TEST(ResumedArchive, ThoseOfOtherProgramsGrow)
{
    for (const char* name : {"two-records.binary", "two-records.xml"}) {
        QFile file(testDataFolder() + QStringLiteral("/archives/") + QLatin1String(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        const QByteArray archive = file.readAll();
        ASSERT_EQ(recordsFromKeyedArchive(archive).records.size(), 2) << name;
        EXPECT_FALSE(KeyedArchiver().resume(PropertyListGraph(archive))) << name;
        EXPECT_TRUE(growsOrIsDamaged(archive, resumingRecord(7))) << name;
    }
}

/// Each byte with other values: whatever still is an archive, laid out like ours or not, keeps its records.
TEST(ResumedArchive, NoOtherLayoutLosesARecord)
{
    const QByteArray archive = keyedArchive(resumingRecords(2));
    int readable = 0;
    for (qsizetype place = 0; place < archive.size(); ++place)
        for (const int difference : {1, 2, 3, 0x10, 0x80}) {
            QByteArray changed = archive;
            changed[place] = static_cast<char>(changed[place] ^ difference);
            readable += recordsFromKeyedArchive(changed).fault.isEmpty() ? 1 : 0;
            ASSERT_TRUE(growsOrIsDamaged(changed, resumingRecord(1))) << place << " by " << difference;
        }
    EXPECT_GT(readable, 100);
}

TEST(ResumedArchive, AnOutlineHasTheWantedEntriesAndTheSameFault)
{
    const QStringList wanted{QStringLiteral("Battery.CycleCount")};
    const QByteArray archive = keyedArchive(resumingRecords(2));
    const ArchivedRecords outline = outlineOfKeyedArchive(archive, wanted);
    EXPECT_EQ(outline.fault, QString());
    EXPECT_EQ(outline.records,
              (QVariantList{QVariantMap{{wanted[0], qint64{0}}}, QVariantMap{{wanted[0], qint64{1}}}}));
    for (qsizetype place = 0; place < archive.size(); ++place) {
        QByteArray changed = archive;
        changed[place] = static_cast<char>(changed[place] ^ 1);
        ASSERT_EQ(outlineOfKeyedArchive(changed, wanted).fault, recordsFromKeyedArchive(changed).fault)
            << place;
    }
}

} // namespace
