#include "application/saved/SavedSamples.h"

#include <gtest/gtest.h>

#include "platform/PowerHistory.h"
#include "tests/records/TemporaryHistory.h"
#include "tests/support/ComesTrue.h"

using namespace quindle;

namespace {

struct SavedSamplesTest : TemporaryHistory
{
    SavedSamplesTest()
    {
        QObject::connect(&samples, &SavedSamples::found, &samples, [this](const std::vector<Sample>& answer) {
            ++answers;
            found = answer;
        });
        QObject::connect(&samples, &SavedSamples::message, &samples,
                         [this](const QString& line) { told.append(line); });
        QObject::connect(&samples, &SavedSamples::changed, &samples, [this] { samples.read(0, 5000); });
    }

    void read()
    {
        samples.read(0, 5000);
        EXPECT_TRUE(comesTrue([this] { return answers > 0; }));
    }

    void record(qint64 moment) { EXPECT_TRUE(SampleStore(database()).append({sampleAt(moment)}).isGood()); }

    SavedSamples samples{database()};
    QStringList told;
    int answers = 0;
    std::vector<Sample> found;
};

TEST_F(SavedSamplesTest, TheFirstOnesOfAllAreSeenThoughTheirFolderIsNew)
{
    read();
    EXPECT_TRUE(found.empty());
    record(1000);
    EXPECT_TRUE(comesTrue([this] { return found.size() == 1; }));
}

TEST_F(SavedSamplesTest, WhatAnotherProcessAddsIsSeen)
{
    record(1000);
    read();
    EXPECT_EQ(found.size(), 1U);
    record(2000);
    EXPECT_TRUE(comesTrue([this] { return found.size() == 2; }));
}

TEST_F(SavedSamplesTest, ADamagedFileThatIsSetAsideIsNamed)
{
    write(database(), "damaged");
    read();
    ASSERT_EQ(told.size(), 1) << told.join(u'\n').toStdString();
    EXPECT_TRUE(told[0].startsWith(database() + QStringLiteral(" is damaged, set aside as ")))
        << told[0].toStdString();
}

TEST_F(SavedSamplesTest, ADamagedFileIsNamedWhereTheFirstWeekWouldBeTakenOver)
{
    write(database(), "damaged");
    samples.takeOver([] { return std::make_unique<NoPowerHistory>(); }, 5000);
    EXPECT_TRUE(comesTrue([this] { return told.size() == 1; }));
    EXPECT_FALSE(QFile::exists(database())) << "nothing is written instead";
}

} // namespace
