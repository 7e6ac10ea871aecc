#include "application/saved/SavedSnapshots.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/records/TemporaryHistory.h"
#include "tests/support/ComesTrue.h"

using namespace quindle;

namespace {

struct SavedSnapshotsTest : TemporaryHistory
{
    SavedSnapshotsTest()
    {
        QObject::connect(&snapshots, &SavedSnapshots::message, &snapshots,
                         [this](const QString& line) { lines.append(line); });
    }

    void wait()
    {
        EXPECT_TRUE(comesTrue([this] { return !snapshots.isBusy(); }));
    }

    QVariantList stored() const { return SnapshotArchive(archive()).read().records; }

    SavedSnapshots snapshots{archive()};
    QStringList lines;
};

TEST_F(SavedSnapshotsTest, AreReadWhenTheyAreAskedFor)
{
    SnapshotArchive(archive()).append(recordAt(1000));
    EXPECT_TRUE(snapshots.records().isEmpty());
    snapshots.load();
    EXPECT_TRUE(snapshots.isBusy());
    wait();
    EXPECT_EQ(snapshots.records().size(), 1);
    EXPECT_EQ(lines, QStringList());
}

TEST_F(SavedSnapshotsTest, AreReadAgainOnlyWhenTheFileHasChanged)
{
    SnapshotArchive(archive()).append(recordAt(1000));
    snapshots.load();
    wait();
    snapshots.load();
    EXPECT_FALSE(snapshots.isBusy()) << "nothing has changed";
    SnapshotArchive(archive()).append(recordAt(2000));
    snapshots.load();
    wait();
    EXPECT_EQ(snapshots.records().size(), 2) << "saved by another process";
    snapshots.add(recordAt(3000));
    wait();
    snapshots.load();
    EXPECT_FALSE(snapshots.isBusy()) << "a change of its own was read with it";
}

TEST_F(SavedSnapshotsTest, SaysHowFarTheReadingIs)
{
    QVariantList records;
    for (int number = 0; number < 200; ++number)
        records.append(recordAt(1000 + number));
    SnapshotArchive(archive()).merge(records);
    std::vector<int> percents;
    QObject::connect(&snapshots, &SavedSnapshots::progressed, &snapshots, [&](int percent) {
        EXPECT_TRUE(snapshots.isBusy());
        percents.push_back(percent);
    });
    snapshots.load();
    wait();
    ASSERT_EQ(percents.size(), 100U) << "each number once";
    EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
    EXPECT_EQ(percents.back(), 100);
}

TEST_F(SavedSnapshotsTest, ChangesReachTheArchive)
{
    snapshots.add(recordAt(1000));
    wait();
    snapshots.add(recordAt(2000));
    wait();
    EXPECT_EQ(stored().size(), 2);
    const QVariantList first{snapshots.records().first()};
    snapshots.remove(first);
    wait();
    EXPECT_EQ(stored().size(), 1);
    EXPECT_EQ(snapshots.records(), stored());
    snapshots.merge(first);
    wait();
    EXPECT_EQ(stored().size(), 2);
    EXPECT_EQ(lines,
              (QStringList{QStringLiteral("1 snapshot saved"), QStringLiteral("1 snapshot saved"),
                           QStringLiteral("1 snapshot deleted"), QStringLiteral("1 snapshot restored")}));
    snapshots.removeAll();
    wait();
    EXPECT_TRUE(stored().isEmpty());
    EXPECT_TRUE(snapshots.records().isEmpty());
}

TEST_F(SavedSnapshotsTest, AnotherArchiveIsImportedOnce)
{
    const QString other = m_root.filePath(QStringLiteral("other.qndarchive"));
    for (const qint64 moment : {1000, 2000, 3000})
        SnapshotArchive(other).append(recordAt(moment));
    snapshots.add(recordAt(1000));
    wait();
    lines.clear();
    for (int time = 0; time < 2; ++time) {
        snapshots.importFrom(other);
        wait();
    }
    EXPECT_EQ(stored().size(), 3);
    EXPECT_EQ(lines,
              (QStringList{QStringLiteral("2 snapshots imported"), QStringLiteral("0 snapshots imported")}));
}

TEST_F(SavedSnapshotsTest, WhatIsNoArchiveIsNamed)
{
    const QString other = m_root.filePath(QStringLiteral("other"));
    snapshots.importFrom(other);
    wait();
    write(other, "no archive");
    snapshots.importFrom(other);
    wait();
    ASSERT_EQ(lines.size(), 2);
    for (const QString& line : lines)
        EXPECT_TRUE(line.startsWith(other + QStringLiteral(": "))) << line.toStdString();
    EXPECT_FALSE(QFile::exists(archive()));
}

TEST_F(SavedSnapshotsTest, ADamagedArchiveIsNamed)
{
    write(archive(), "damaged");
    snapshots.load();
    wait();
    EXPECT_TRUE(snapshots.fault().startsWith(archive())) << snapshots.fault().toStdString();
    EXPECT_EQ(lines, QStringList());
    // Set aside by the change, so that the next reading finds a whole one.
    snapshots.add(recordAt(1000));
    wait();
    EXPECT_EQ(snapshots.fault(), QString());
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines[0].startsWith(archive())) << lines[0].toStdString();
}

TEST_F(SavedSnapshotsTest, WithoutAPlaceNothingIsSaved)
{
    SavedSnapshots none({});
    QStringList told;
    QObject::connect(&none, &SavedSnapshots::message, &none, [&](const QString& line) { told.append(line); });
    none.add(recordAt(1000));
    EXPECT_EQ(told.size(), 1);
    EXPECT_FALSE(none.isBusy());
}

} // namespace
