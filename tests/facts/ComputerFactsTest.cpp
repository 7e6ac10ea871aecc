#include "facts/ComputerFacts.h"

#include <gtest/gtest.h>

#include "tests/facts/FactComputer.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct ComputerFactsTest : testing::Test, test::FactComputer
{
    void makeWith(const char* model, const char* serial)
    {
        platform.setComputer(QString::fromLatin1(model), QString::fromLatin1(serial));
        make();
    }

    QString reported(FactId id) { return factText(fact(id, FactPlace::Report), FactPlace::Report); }
};

TEST_F(ComputerFactsTest, NoBuiltOfASerialThatDoesNotDecode)
{
    struct Case
    {
        const char* serial;
        bool decodes;
    };
    // Eleven characters have date characters, whether or not they make a date.
    for (const Case& row : {Case{"C02MN1TXF5YW", true}, Case{"W8038AAA123", true}, Case{"PFQQABCDEFG", false},
                            Case{"5CG1234ABC", false}, Case{"", false}}) {
        makeWith("MacBookAir6,2", row.serial);
        EXPECT_EQ(fact(FactId::ComputerAge, FactPlace::Report).shown, row.decodes) << row.serial;
        EXPECT_EQ(fact(FactId::ComputerAge).shown, row.decodes) << row.serial;
    }
}

TEST_F(ComputerFactsTest, AgeHasTheDateInItsToolTip)
{
    make();
    EXPECT_EQ(fact(FactId::ComputerAge).toolTip, QStringLiteral("Built 2014-05-12"));
    EXPECT_EQ(reported(FactId::ComputerAge), QStringLiteral("2014-05-12 (235 days)"));
    makeDemo();
    EXPECT_FALSE(fact(FactId::ComputerAge).shown) << "no age text and no date text";
    EXPECT_FALSE(fact(FactId::ComputerAge, FactPlace::Report).shown);
}

TEST_F(ComputerFactsTest, ModelInWordsOrByItsIdentifier)
{
    make();
    EXPECT_EQ(fact(FactId::Model).value, QStringLiteral("(11-inch, Late 2013)"));
    EXPECT_EQ(fact(FactId::Model).toolTip, QStringLiteral("MacBookAir6,2"));
    EXPECT_EQ(reported(FactId::Model), QStringLiteral("MacBookAir6,2"));
    makeWith("20Y70037MH", "PF123456");
    EXPECT_EQ(fact(FactId::Model).value, QStringLiteral("20Y70037MH"));
    EXPECT_EQ(fact(FactId::Model).toolTip, QString());
    EXPECT_FALSE(fact(FactId::Type, FactPlace::Report).shown);
}

TEST_F(ComputerFactsTest, NameIsTheCaptionOfTheType)
{
    make();
    EXPECT_EQ(fact(FactId::Computer).caption, QStringLiteral("Demo Computer"));
    EXPECT_EQ(fact(FactId::Computer).value, QStringLiteral("MacBook Air"));
    makeWith("20Y70037MH", "PF123456");
    EXPECT_TRUE(fact(FactId::Computer).shown);
    EXPECT_EQ(fact(FactId::Computer).value, QString());
    platform.host.name.clear();
    make();
    EXPECT_FALSE(fact(FactId::Computer).shown);
    makeWith("MacBookAir6,2", "C02MN1TXF5YW");
    EXPECT_EQ(fact(FactId::Computer).caption, QStringLiteral("Type"));
}

TEST_F(ComputerFactsTest, AComputerThatGivesNothing)
{
    platform.registry.entries.clear();
    platform.systemFiles.files.clear();
    platform.host.name.clear();
    make();
    for (const FactPlace place : {FactPlace::View, FactPlace::Menu, FactPlace::Report})
        EXPECT_EQ(shown(place), QString());
}

} // namespace
