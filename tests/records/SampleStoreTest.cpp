#include "records/SampleStore.h"

#include <cstring>

#include "records/Database.h"
#include "records/Thinning.h"
#include "tests/records/TemporaryHistory.h"
#include "tests/support/FullDisk.h"

using namespace quindle;

namespace {

constexpr qint64 firstMoment = 1'700'000'000;

using SampleStoreTest = TemporaryHistory;
using Samples = std::vector<Sample>;

TEST_F(SampleStoreTest, SamplesComeBackAsTheyWere)
{
    const Samples samples{{firstMoment, 80.25, -12.5, SampleState::Discharging},
                          {firstMoment + 60, 79, std::nullopt, SampleState::Unknown},
                          {firstMoment + 120, 100, 0.0, SampleState::Full},
                          {firstMoment + 180, 0, 45.5, SampleState::Charging}};
    EXPECT_EQ(SampleStore(database()).append(samples).fault, QString());
    SampleStore store(database());
    EXPECT_EQ(store.samplesBetween(0, always), samples);
    EXPECT_EQ(store.samplesBetween(firstMoment + 60, firstMoment + 120),
              Samples(samples.begin() + 1, samples.begin() + 3));
    EXPECT_EQ(store.firstMoment(), firstMoment);
}

TEST_F(SampleStoreTest, ReadingMakesNoFile)
{
    StoreOutcome outcome;
    EXPECT_EQ(SampleStore(database()).samplesBetween(0, always, &outcome), Samples());
    EXPECT_EQ(outcome.fault, QString());
    EXPECT_EQ(SampleStore(database()).firstMoment(), std::nullopt);
    EXPECT_TRUE(SampleStore(database()).removeAll().isGood());
    EXPECT_FALSE(QDir(folder()).exists());
}

TEST_F(SampleStoreTest, AReaderSeesWhatAnotherWrites)
{
    SampleStore reader(database());
    EXPECT_TRUE(reader.samplesBetween(0, always).empty());
    for (qint64 number = 1; number < 4; ++number) {
        SampleStore(database()).append({sampleAt(firstMoment + number)});
        EXPECT_EQ(reader.samplesBetween(0, always).size(), static_cast<std::size_t>(number));
    }
    QFile::remove(database());
    EXPECT_TRUE(reader.samplesBetween(0, always).empty());
}

TEST_F(SampleStoreTest, SortedAndOneOfEachMoment)
{
    SampleStore store(database());
    store.append({sampleAt(firstMoment + 60, 49), sampleAt(firstMoment, 50)});
    EXPECT_TRUE(store.append({sampleAt(firstMoment, 10), sampleAt(firstMoment + 30, 48)}).isGood());
    EXPECT_EQ(
        store.samplesBetween(0, always),
        (Samples{sampleAt(firstMoment, 50), sampleAt(firstMoment + 30, 48), sampleAt(firstMoment + 60, 49)}));
}

TEST_F(SampleStoreTest, TheOtherServicesSamplesAreMarked)
{
    SampleStore store(database());
    store.append({sampleAt(firstMoment)}, SampleSource::UPower);
    store.append({sampleAt(firstMoment + 60)});
    const auto stored = store.storedBetween(0, always);
    ASSERT_EQ(stored.size(), 2U);
    EXPECT_EQ(stored[0].source, SampleSource::UPower);
    EXPECT_EQ(stored[1].source, SampleSource::Helper);
}

TEST_F(SampleStoreTest, NobodyElseMayRead)
{
    const mode_t former = ::umask(0);
    SampleStore store(database());
    store.append({sampleAt(firstMoment)});
    ::umask(former);
    EXPECT_EQ(modeOf(folder()), 0700U);
    const QStringList expected{QStringLiteral("history.sqlite"), QStringLiteral("history.sqlite-shm"),
                               QStringLiteral("history.sqlite-wal")};
    EXPECT_EQ(files(), expected);
    for (const QString& name : expected)
        EXPECT_EQ(modeOf(folder() + u'/' + name), 0600U) << name.toStdString();
}

TEST_F(SampleStoreTest, AFileThatOthersMayReadIsClosedToThem)
{
    SampleStore(database()).append({sampleAt(firstMoment)});
    ::chmod(QFile::encodeName(database()).constData(), 0644);
    SampleStore(database()).append({sampleAt(firstMoment + 1)});
    EXPECT_EQ(modeOf(database()), 0600U);
}

TEST_F(SampleStoreTest, OldSamplesAreThinnedInTheFile)
{
    Samples samples;
    for (qint64 old = firstMoment - 400 * secondsOfDay; old <= firstMoment; old += 900)
        samples.push_back(sampleAt(old, static_cast<double>(old / 900 % 101)));
    SampleStore store(database());
    store.append(samples);
    const auto before = store.storedBetween(0, always);
    EXPECT_TRUE(store.thin(firstMoment).isGood());
    const auto after = store.storedBetween(0, always);
    EXPECT_EQ(after, thinned(before, firstMoment));
    EXPECT_LT(after.size(), before.size() / 3);
    EXPECT_TRUE(store.thin(firstMoment).isGood());
    EXPECT_EQ(store.storedBetween(0, always), after);
    // One that comes late joins the value of its hour.
    store.append({sampleAt(firstMoment - 40 * secondsOfDay + 7)});
    EXPECT_TRUE(store.thin(firstMoment).isGood());
    EXPECT_EQ(store.storedBetween(0, always).size(), after.size());
}

TEST_F(SampleStoreTest, TheLimitOfAge)
{
    SampleStore store(database());
    store.append({sampleAt(firstMoment - 1), sampleAt(firstMoment), sampleAt(firstMoment + 1)});
    EXPECT_TRUE(store.removeBefore(firstMoment).isGood());
    EXPECT_EQ(store.samplesBetween(0, always), (Samples{sampleAt(firstMoment), sampleAt(firstMoment + 1)}));
}

TEST_F(SampleStoreTest, WhatIsRemovedLeavesNoTrace)
{
    const QByteArray trace = QByteArray::fromHex("4049013579bdf024"); // a charge that occurs nowhere else
    double charge = 0;
    const quint64 bits = trace.toHex().toULongLong(nullptr, 16);
    std::memcpy(&charge, &bits, sizeof charge);
    write(folder() + QStringLiteral("/history.sqlite.damaged-20260101-000000"), "damaged");
    SampleStore store(database());
    store.append({sampleAt(firstMoment, charge)});
    store.setNote("daily", "1");
    ASSERT_TRUE(bytesOf(database() + QStringLiteral("-wal")).contains(trace));
    EXPECT_TRUE(store.removeAll().isGood());
    for (const QString& name : files())
        EXPECT_FALSE(bytesOf(folder() + u'/' + name).contains(trace)) << name.toStdString();
    EXPECT_FALSE(files().join(u' ').contains(u"damaged"));
    EXPECT_TRUE(store.samplesBetween(0, always).empty());
    EXPECT_EQ(store.note("daily"), "1");
}

TEST_F(SampleStoreTest, Notes)
{
    SampleStore store(database());
    EXPECT_EQ(store.note("daily"), std::nullopt);
    EXPECT_FALSE(QFile::exists(database()));
    EXPECT_TRUE(store.setNote("daily", "1").isGood());
    EXPECT_TRUE(store.setNote("daily", "2").isGood());
    EXPECT_TRUE(store.setNote("other", "größer").isGood());
    EXPECT_EQ(SampleStore(database()).note("daily"), "2");
    EXPECT_EQ(SampleStore(database()).note("other"), "größer");
}

class DamagedSampleStore : public TemporaryHistory, public testing::WithParamInterface<const char*>
{
protected:
    /// A database with many pages.
    void SetUp() override
    {
        SampleStore store(database());
        Samples samples;
        for (qint64 number = 0; number < 5000; ++number)
            samples.push_back(sampleAt(firstMoment + number));
        store.append(samples);
    }

    void damage(const QByteArray& how)
    {
        QByteArray bytes = bytesOf(database());
        ASSERT_GT(bytes.size(), 50'000);
        if (how == "no database")
            bytes = "anything else";
        else if (how == "head")
            bytes.replace(0, 16, QByteArray(16, 'x'));
        else if (how == "tables")
            bytes.replace(100, 400, QByteArray(400, '\xff'));
        else if (how == "pages")
            bytes.replace(8192, bytes.size() - 8192, QByteArray(bytes.size() - 8192, '\xa5'));
        else
            bytes.truncate(9000);
        write(database(), bytes);
        m_damaged = bytes;
    }

    QByteArray m_damaged;
};

TEST_P(DamagedSampleStore, IsSetAsideAndNamed)
{
    damage(GetParam());
    SampleStore store(database());
    StoreOutcome outcome = store.thin(firstMoment);
    EXPECT_EQ(outcome.fault, QString());
    const QStringList left = files().filter(QStringLiteral("damaged"));
    ASSERT_EQ(left.size(), 1);
    const QString aside = folder() + u'/' + left[0];
    EXPECT_EQ(outcome.notice, database() + QStringLiteral(" is damaged, set aside as ") + aside);
    EXPECT_EQ(bytesOf(aside), m_damaged);
    EXPECT_EQ(modeOf(aside), 0600U);
    EXPECT_TRUE(store.append({sampleAt(firstMoment)}).isGood());
    EXPECT_EQ(store.samplesBetween(0, always), Samples{sampleAt(firstMoment)});
}

TEST_P(DamagedSampleStore, IsNeverTakenForAnEmptyOne)
{
    damage(GetParam());
    SampleStore store(database());
    const StoreOutcome outcome = store.append({sampleAt(firstMoment - 10)});
    EXPECT_EQ(outcome.fault, QString());
    // Damage far from what was written shows at the day's work.
    const StoreOutcome later = store.thin(firstMoment);
    EXPECT_EQ(outcome.notice.isEmpty() + later.notice.isEmpty(), 1);
    EXPECT_EQ(files().filter(QStringLiteral("damaged")).size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Kinds, DamagedSampleStore,
                         testing::Values("no database", "head", "tables", "pages", "cut off"));

TEST_F(SampleStoreTest, TwoDamagedOnesOfOneSecondAreBothKept)
{
    for (int number = 0; number < 3; ++number) {
        write(database(), "damaged " + QByteArray::number(number));
        EXPECT_FALSE(SampleStore(database()).append({sampleAt(firstMoment)}).notice.isEmpty());
        QFile::remove(database());
    }
    EXPECT_EQ(files().filter(QStringLiteral("damaged")).size(), 3);
}

TEST_F(SampleStoreTest, ANewerVersionsFileStaysAsItIs)
{
    SampleStore(database()).append({sampleAt(firstMoment)});
    Database file;
    ASSERT_TRUE(file.open(QFile::encodeName(database()), 1000) && file.run("PRAGMA user_version = 2"));
    file.close();
    const QByteArray before = bytesOf(database());
    SampleStore store(database());
    const StoreOutcome outcome = store.append({sampleAt(firstMoment + 1)});
    EXPECT_EQ(outcome.fault,
              QStringLiteral("cannot write %1: it is of a newer version of Quindle").arg(database()));
    StoreOutcome looked;
    EXPECT_TRUE(store.samplesBetween(0, always, &looked).empty());
    EXPECT_EQ(looked.fault,
              QStringLiteral("cannot read %1: it is of a newer version of Quindle").arg(database()));
    EXPECT_EQ(bytesOf(database()), before);
}

TEST_F(SampleStoreTest, WhatIsNoFileIsNamed)
{
    QDir().mkpath(database());
    EXPECT_EQ(SampleStore(database()).append({sampleAt(firstMoment)}).fault,
              QStringLiteral("cannot write %1: it is not an ordinary file").arg(database()));
    QDir().rmdir(database());
    ASSERT_EQ(::mkfifo(QFile::encodeName(database()).constData(), 0600), 0);
    StoreOutcome outcome;
    SampleStore(database()).samplesBetween(0, always, &outcome);
    EXPECT_EQ(outcome.fault, QStringLiteral("cannot read %1: it is not an ordinary file").arg(database()));
}

TEST_F(SampleStoreTest, AFolderThatCannotBeMadeIsNamed)
{
    write(folder(), "a file");
    const StoreOutcome outcome = SampleStore(database()).append({sampleAt(firstMoment)});
    EXPECT_EQ(outcome.fault, QStringLiteral("cannot write %1: Not a directory").arg(database()));
    EXPECT_EQ(outcome.error, ENOTDIR);
}

TEST_F(SampleStoreTest, AFullDiskChangesNothing)
{
    SampleStore store(database());
    store.append({sampleAt(firstMoment)});
    const StoreOutcome outcome = [&] {
        const FullDisk disk(1024);
        return store.append({sampleAt(firstMoment + 1)});
    }();
    EXPECT_EQ(outcome.fault, QStringLiteral("cannot write %1: File too large").arg(database()));
    EXPECT_EQ(store.samplesBetween(0, always), Samples{sampleAt(firstMoment)});
    EXPECT_TRUE(store.append({sampleAt(firstMoment + 2)}).isGood());
    EXPECT_EQ(files().filter(QStringLiteral("damaged")), QStringList());
}

// Root may write anywhere, so it is an account without rights that tries.
TEST_F(SampleStoreTest, AReadOnlyFolderIsNamed)
{
    QDir().mkpath(folder());
    ASSERT_EQ(::chmod(QFile::encodeName(m_root.path()).constData(), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(folder()).constData(), 0555), 0);
    const pid_t writer = forked([&] {
        if (::geteuid() == 0 && ::setresuid(65534, 65534, 65534) != 0)
            ::_exit(2);
        const StoreOutcome outcome = SampleStore(database()).append({sampleAt(firstMoment)});
        ::_exit(outcome.fault == QStringLiteral("cannot write %1: Permission denied").arg(database()) ? 0
                                                                                                      : 1);
    });
    EXPECT_EQ(statusOf(writer), 0);
}

} // namespace
