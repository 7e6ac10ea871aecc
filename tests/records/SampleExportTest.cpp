#include "records/SampleExport.h"

#include <limits>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <gtest/gtest.h>

using namespace quindle;

namespace {

const std::vector<Sample> exportedSamples{{1'795'000'000, 66.666, -12.4, SampleState::Discharging},
                                          {1'795'000'060, 66, std::nullopt, SampleState::Unknown},
                                          {1'795'000'120, 100, 0, SampleState::Full}};

TEST(SampleExport, HasALineForEachSample)
{
    EXPECT_EQ(samplesText(exportedSamples, ExportFormat::Csv),
              "Moment,Charge,Power,State\r\n"
              "2026-11-18T11:06:40Z,66.67,-12.40,discharging\r\n"
              "2026-11-18T11:07:40Z,66.00,,unknown\r\n"
              "2026-11-18T11:08:40Z,100.00,0.00,full\r\n");
    EXPECT_EQ(samplesText({}, ExportFormat::Csv), "Moment,Charge,Power,State\r\n");
}

TEST(SampleExport, AsJson)
{
    const auto read = QJsonDocument::fromJson(samplesText(exportedSamples, ExportFormat::Json)).array();
    ASSERT_EQ(read.size(), 3);
    EXPECT_EQ(read[0].toObject().value(QStringLiteral("Moment")), QStringLiteral("2026-11-18T11:06:40Z"));
    EXPECT_EQ(read[0].toObject().value(QStringLiteral("Charge")), 66.67);
    EXPECT_EQ(read[0].toObject().value(QStringLiteral("Power")), -12.4);
    EXPECT_TRUE(read[1].toObject().value(QStringLiteral("Power")).isNull());
    EXPECT_EQ(read[2].toObject().value(QStringLiteral("State")), QStringLiteral("full"));
    EXPECT_EQ(samplesText({}, ExportFormat::Json), "[\n]\n");
}

TEST(SampleExport, WhatIsNoNumberIsLeftOut)
{
    const std::vector<Sample> odd{{0, 50, std::numeric_limits<double>::infinity(), SampleState::Charging}};
    EXPECT_EQ(samplesText(odd, ExportFormat::Csv).count(",,"), 1);
    EXPECT_FALSE(QJsonDocument::fromJson(samplesText(odd, ExportFormat::Json)).isNull());
}

TEST(SampleExport, IsTheSameInEveryLocale)
{
    const QByteArray before = samplesText(exportedSamples, ExportFormat::Csv);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QByteArray german = samplesText(exportedSamples, ExportFormat::Csv);
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(german, before);
}

} // namespace
