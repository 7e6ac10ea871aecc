#include "application/pages/DetailSections.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QVariantMap map(const char* key, const QVariant& value)
{
    return {{QString::fromLatin1(key), value}};
}

const DetailSources sources{
    .sourceRows = {map("Name", QStringLiteral("BAT0"))},
    .registry = {{QStringLiteral("AppleSmartBattery"),
                  QVariantMap{{QStringLiteral("Voltage"), qint64{11876}},
                              {QStringLiteral("IsCharging"), false},
                              {QStringLiteral("Adapter"), map("Watts", qint64{45})},
                              {QStringLiteral("Odd"), QStringLiteral("two\nlines")}}}}};

TEST(DetailSectionsTest, AllValuesByPlace)
{
    const auto sections = detailSections(sources);
    ASSERT_EQ(sections.size(), 2U);
    EXPECT_EQ(sections[0].title, QStringLiteral("Power source"));
    EXPECT_EQ(sections[1].title, QStringLiteral("Registry: AppleSmartBattery"));
    const std::vector<DetailRow> expected{{QStringLiteral("Adapter.Watts"), QStringLiteral("45")},
                                          {QStringLiteral("IsCharging"), QStringLiteral("No")},
                                          {QStringLiteral("Odd"), QStringLiteral("two lines")},
                                          {QStringLiteral("Voltage"), QStringLiteral("11876")}};
    EXPECT_EQ(sections[1].rows, expected);
}

TEST(DetailSectionsTest, SeveralSourcesAreNumberedAndEmptyOnesLeftOut)
{
    const auto sections = detailSections(
        {.sourceRows = {map("Name", QStringLiteral("a")), QVariantMap(), map("Name", QStringLiteral("b"))},
         .registry = {{QStringLiteral("Empty"), QVariantMap()}}});
    ASSERT_EQ(sections.size(), 2U);
    EXPECT_EQ(sections[0].title, QStringLiteral("Power source 1"));
    EXPECT_EQ(sections[1].title, QStringLiteral("Power source 3"));
}

TEST(DetailSectionsTest, DeepNestingEndsInOneRow)
{
    QVariantMap nested = map("k", qint64{1});
    for (int depth = 0; depth < 100; ++depth)
        nested = map("k", nested);
    const auto sections = detailSections({.sourceRows = {nested}, .registry = {}});
    ASSERT_EQ(sections.size(), 1U);
    ASSERT_EQ(sections[0].rows.size(), 1U);
    EXPECT_EQ(sections[0].rows[0].name.count(u'k'), 17);
}

TEST(DetailSectionsTest, FoundByEveryWordInNameOrValue)
{
    const auto sections = detailSections(sources);
    const std::pair<const char*, int> cases[] = {
        {"", 5}, {"volt", 1}, {"VOLT 118", 1}, {"volt 45", 0}, {"  watts  ", 1}, {"bat0", 1}, {"a", 4}};
    for (const auto& [search, count] : cases) {
        std::size_t rows = 0;
        for (const DetailSection& section : foundDetails(sections, QString::fromLatin1(search)))
            rows += section.rows.size();
        EXPECT_EQ(rows, std::size_t(count)) << search;
    }
    EXPECT_EQ(foundDetails(sections, QStringLiteral("watts"))[0].title,
              QStringLiteral("Registry: AppleSmartBattery"));
}

TEST(DetailSectionsTest, AsText)
{
    EXPECT_EQ(
        detailsText(foundDetails(detailSections(sources), QStringLiteral("a"))),
        QStringLiteral("Power source\nName: BAT0\n\n"
                       "Registry: AppleSmartBattery\nAdapter.Watts: 45\nIsCharging: No\nVoltage: 11876\n"));
    EXPECT_EQ(detailsText({}), QString());
}

} // namespace
