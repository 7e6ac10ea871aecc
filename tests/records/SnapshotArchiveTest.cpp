#include "records/SnapshotArchive.h"

#include "history/SavedHistory.h"
#include "tests/records/TemporaryHistory.h"
#include "tests/support/Durations.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TestData.h"

using namespace quindle;

namespace {

constexpr qint64 noon = 1'700'049'600; // of 15 November 2023, UTC

using SnapshotArchiveTest = TemporaryHistory;

TEST_F(SnapshotArchiveTest, TheHelperReadsWhatIsAppended)
{
    EXPECT_TRUE(SnapshotArchive(archive()).append(recordAt(noon)).isGood());
    EXPECT_TRUE(SnapshotArchive(archive()).append(recordAt(noon + day)).isGood());
    EXPECT_EQ(savedHistoryFile(folder()), archive());
    EXPECT_EQ(savedRecords(archive()), (QVariantList{recordAt(noon), recordAt(noon + day)}));
}

TEST_F(SnapshotArchiveTest, NoFileIsNoRecords)
{
    const ArchivedRecords read = SnapshotArchive(archive()).read();
    EXPECT_EQ(read.records, QVariantList());
    EXPECT_EQ(read.fault, QString());
    EXPECT_FALSE(QDir(folder()).exists());
}

TEST_F(SnapshotArchiveTest, NobodyElseMayRead)
{
    const mode_t former = ::umask(0);
    SnapshotArchive(archive()).append(recordAt(noon));
    ::umask(former);
    EXPECT_EQ(modeOf(folder()), 0700U);
    EXPECT_EQ(modeOf(archive()), 0600U);
    EXPECT_EQ(modeOf(archive() + QStringLiteral(".lock")), 0600U);
    EXPECT_EQ(files(), QStringList{QStringLiteral("QuindleData.qndarchive")});
}

TEST_F(SnapshotArchiveTest, ArchivesOfOtherProgramsGrow)
{
    for (const char* name : {"two-records.binary", "two-records.xml"}) {
        QFile::remove(archive());
        QDir().mkpath(folder());
        ASSERT_TRUE(
            QFile::copy(testDataFolder() + QStringLiteral("/archives/") + QLatin1String(name), archive()));
        const QVariantList before = savedRecords(archive());
        ASSERT_EQ(before.size(), 2) << name;
        EXPECT_TRUE(SnapshotArchive(archive()).append(recordAt(noon)).isGood());
        EXPECT_EQ(savedRecords(archive()), before + QVariantList{recordAt(noon)}) << name;
        EXPECT_TRUE(bytesOf(archive()).startsWith("bplist00")) << name;
    }
}

TEST_F(SnapshotArchiveTest, ADamagedOneIsSetAsideAndNamed)
{
    write(archive(), "bplist00 and no more");
    const QString fault = archive() + QStringLiteral(": it is not the property list of an archive");
    EXPECT_EQ(SnapshotArchive(archive()).read().fault, fault);
    const StoreOutcome outcome = SnapshotArchive(archive()).append(recordAt(noon));
    EXPECT_EQ(outcome.fault, QString());
    const QStringList left = files().filter(QStringLiteral("damaged"));
    ASSERT_EQ(left.size(), 1);
    EXPECT_EQ(outcome.notice,
              archive() + QStringLiteral(" is damaged, set aside as ") + folder() + u'/' + left[0]);
    EXPECT_EQ(bytesOf(folder() + u'/' + left[0]), "bplist00 and no more");
    EXPECT_EQ(savedRecords(archive()), QVariantList{recordAt(noon)});
}

TEST_F(SnapshotArchiveTest, WhatChangesNothingWritesNothing)
{
    write(archive(), "damaged");
    EXPECT_TRUE(SnapshotArchive(archive()).remove({recordAt(noon)}).isGood());
    EXPECT_TRUE(SnapshotArchive(archive()).merge({}).isGood());
    EXPECT_EQ(bytesOf(archive()), "damaged");
}

// Such a file may be whole: the disk, or another user's rights, are at fault.
TEST_F(SnapshotArchiveTest, WhatCannotBeReadIsLeftAlone)
{
    QDir().mkpath(archive());
    const StoreOutcome outcome = SnapshotArchive(archive()).append(recordAt(noon));
    EXPECT_EQ(outcome.fault, QStringLiteral("cannot read %1: it is not an ordinary file").arg(archive()));
    EXPECT_TRUE(QDir(archive()).exists());
}

TEST_F(SnapshotArchiveTest, ADaysFirstSnapshotOfABattery)
{
    SnapshotArchive own(archive());
    for (const QVariantMap& record :
         {recordAt(noon), recordAt(noon + 60), recordAt(noon + 120, 4000, QStringLiteral("other")),
          recordAt(noon + day), recordAt(noon + day + 60)})
        EXPECT_TRUE(own.appendIfDue(record).isGood());
    EXPECT_EQ(savedRecords(archive()),
              (QVariantList{recordAt(noon), recordAt(noon + 120, 4000, QStringLiteral("other")),
                            recordAt(noon + day)}));
}

TEST_F(SnapshotArchiveTest, AnotherArchiveIsTakenOverWithoutDoubles)
{
    SnapshotArchive own(archive());
    own.append(recordAt(noon + day));
    SnapshotArchive other(m_root.filePath(QStringLiteral("other.qndarchive")));
    other.append(recordAt(noon + day, 1));
    other.append(recordAt(noon));
    qsizetype added = 0;
    EXPECT_TRUE(own.merge(other.read().records, &added).isGood());
    EXPECT_EQ(added, 1);
    EXPECT_EQ(savedRecords(archive()), (QVariantList{recordAt(noon), recordAt(noon + day)}));
    EXPECT_TRUE(own.merge(other.read().records, &added).isGood());
    EXPECT_EQ(added, 0);
}

TEST_F(SnapshotArchiveTest, WhatWasRemovedCanComeBack)
{
    SnapshotArchive own(archive());
    for (const qint64 moment : {noon, noon + day, noon + 2 * day})
        own.append(recordAt(moment));
    const QVariantList all = own.read().records;
    EXPECT_TRUE(own.remove({recordAt(noon + day), recordAt(noon + 9 * day)}).isGood());
    EXPECT_EQ(own.read().records, (QVariantList{recordAt(noon), recordAt(noon + 2 * day)}));
    EXPECT_TRUE(own.merge({recordAt(noon + day)}).isGood());
    EXPECT_EQ(own.read().records, all);
}

TEST_F(SnapshotArchiveTest, RemovingAllLeavesNothing)
{
    EXPECT_TRUE(SnapshotArchive(archive()).removeAll().isGood());
    SnapshotArchive own(archive());
    write(archive(), "damaged");
    own.append(recordAt(noon));
    EXPECT_TRUE(own.removeAll().isGood());
    EXPECT_EQ(files(), QStringList());
}

TEST_F(SnapshotArchiveTest, AFullDiskChangesNothing)
{
    SnapshotArchive own(archive());
    own.append(recordAt(noon));
    const QByteArray before = bytesOf(archive());
    const StoreOutcome outcome = [&] {
        const FullDisk disk(64);
        return own.append(recordAt(noon + day));
    }();
    EXPECT_EQ(outcome.fault, QStringLiteral("cannot write %1: File too large").arg(archive()));
    EXPECT_EQ(bytesOf(archive()), before);
    EXPECT_EQ(files(), QStringList{QStringLiteral("QuindleData.qndarchive")});
}

TEST_F(SnapshotArchiveTest, ALinkStaysALink)
{
    const QString target = m_root.filePath(QStringLiteral("elsewhere.qndarchive"));
    QDir().mkpath(folder());
    ASSERT_TRUE(QFile::link(target, archive()));
    EXPECT_TRUE(SnapshotArchive(archive()).append(recordAt(noon)).isGood());
    EXPECT_EQ(QFile::symLinkTarget(archive()), target);
    EXPECT_EQ(savedRecords(target).size(), 1);
}

} // namespace
