#include "facts/ShownTexts.h"

#include <gtest/gtest.h>

#include "facts/ValueTexts.h"
#include "tests/facts/FactComputer.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/TestTranslation.h"
#include "tests/support/Texts.h"

using namespace quindle;
using quindle::test::FactComputer;

namespace {

std::map<QString, QString> someGerman()
{
    return {{latin("."), latin(",")},
            {latin("Charge"), latin("Ladung")},
            {latin("Discharging..."), u("Entlädt …")},
            {latin("Discharging with"), u("Entlädt mit")},
            {latin("Time until empty"), latin("Zeit bis leer")},
            {latin("Good"), latin("Gut")},
            {latin("Low"), latin("Niedrig")},
            {latin("%1 of %2"), latin("%1 von %2")},
            {latin("%1 days"), latin("%1 Tage")},
            {latin("%1 cycles"), latin("%1 Zyklen")},
            {latin("%1 Watts"), latin("%1 Watt")},
            {latin("Manufactured %1"), latin("Hergestellt: %1")},
            {latin("Connected"), latin("Angeschlossen")},
            {latin("Chargin with"), u("Lädt mit")}};
}

struct ShownTextsTest : testing::Test, FactComputer
{
};

// Between groups of digits is a narrow space, since the locale's comma would be read as the decimal sign.
TEST_F(ShownTextsTest, AreTranslatedForPeople)
{
    addDevices();
    make();
    const TestTranslation german(someGerman());
    const QString view = shown(FactPlace::View);
    for (const char* line :
         {"Entlädt mit|12,4 W", "Zeit bis leer|3:42", "K750 Keyboard|Niedrig", "Temperature|30,0 °C",
          "Health|83,9 % · Gut", "Age|306 Tage", "1\u202f293 Zyklen"})
        EXPECT_TRUE(view.contains(u(line))) << line << " in\n" << view.toStdString();
    EXPECT_EQ(fact(FactId::BatteryAge).toolTip, latin("Hergestellt: 2014-03-02"));
    EXPECT_TRUE(shown(FactPlace::Menu).contains(u("Ladung|66,7 % · 4\u202f000 von 6\u202f000 mAh")))
        << shown(FactPlace::Menu).toStdString();
    EXPECT_EQ(toolTipText(sources()), u("Entlädt … · 12,4 W\nZeit bis leer 3:42"));
}

TEST_F(ShownTextsTest, StayAsTheyAreForPrograms)
{
    addDevices();
    plugIn();
    make();
    const QString report = shown(FactPlace::Report);
    const QString state = battery().BatteryState();
    const TestTranslation german(someGerman());
    EXPECT_EQ(shown(FactPlace::Report), report);
    EXPECT_EQ(battery().BatteryState(), state);
    EXPECT_EQ(battery().property("StateText").toString(), latin("Charging with"));
}

struct ModelTextCase
{
    const char* text;
    const char* shown;
};

TEST(ModelTextTest, IsTranslatedWhereItIsKnown)
{
    constexpr ModelTextCase table[]{
        {"Chargin with", "Lädt mit"},
        {"60 Watts", "60 Watt"},
        {"4.5 Watts", "4,5 Watt"},
        {"1 days", "1 Tage"},
        {"-3 days", "-3 Tage"},
        {"many days", "many days"},
        {"Overheat", "Overheat"},
        {"good", "good"},
        {"", ""},
        {"nil Watts", "nil Watts"},
        {"99999999999999999999 days", "99999999999999999999 Tage"},
    };
    const TestTranslation german(someGerman());
    for (const auto& [text, shown] : table) {
        EXPECT_EQ(modelText(FactPlace::View, u(text)), u(shown)) << text;
        EXPECT_EQ(modelText(FactPlace::Report, u(text)), u(text));
    }
}

TEST(ModelTextTest, IsTheVerySameInEnglish)
{
    for (const char* text : {"Chargin with", "Discharging...", "60 Watts", "1 days", "1 months", "2.0 years",
                             "-0.5 years", "1 cycle", "Good", "nan days"})
        EXPECT_EQ(modelText(FactPlace::View, u(text)), u(text));
    EXPECT_EQ(cyclesText(1), latin("1 cycle"));
    EXPECT_EQ(cyclesText(2), latin("2 cycles"));
    EXPECT_EQ(cyclesText(0), QString());
}

} // namespace
