#include "inspect/TextReport.h"

#include <gtest/gtest.h>

#include "tests/facts/FactComputer.h"

using namespace quindle;

namespace {

QVariantMap map(std::initializer_list<std::pair<const char*, QVariant>> entries)
{
    QVariantMap values;
    for (const auto& [key, value] : entries)
        values.insert(QString::fromLatin1(key), value);
    return values;
}

QVariant text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

struct TextReport : testing::Test, test::FactComputer
{
    QVariantMap state = map({
        {"statusItem", map({{"title", text("61.0%")}, {"image", text("#bat24")}})},
        {"bars", map({{"stateOfCharge", text("green")}, {"stateOfHealth", text("green")}})},
        {"battery", map({})},
    });

    std::string report() { return reportText(state, factsFor(FactPlace::Report, sources())).toStdString(); }
};

TEST_F(TextReport, AlignsWhatIsThere)
{
    makeDemo();
    EXPECT_EQ(report(), "Status item\n"
                        "  Title             61.0%\n"
                        "  Icon              #bat24\n"
                        "  Charge bar        green\n"
                        "  Health bar        green\n"
                        "\n"
                        "Battery\n"
                        "  Charge            61.0 % (2967 mAh of 4865 mAh)\n"
                        "  Health            89.0 % (4865 mAh)\n"
                        "  Condition         Good\n"
                        "  Discharging with  4.6 W\n"
                        "  Time until empty  4:41\n"
                        "  Adapter           Not connected\n"
                        "  Cycles            293\n"
                        "  Temperature       78.5 °F\n"
                        "  Failures          No Errors\n"
                        "  Manufactured      2014-04-04\n"
                        "\n"
                        "Computer\n"
                        "  Name              Demo Computer\n"
                        "  Type              MacBook Air (13-inch, Late 2013)\n"
                        "  Model             MacBookAir4,2\n"
                        "  System            El Capitan\n"
                        "  Serial number     C02MN1TXF5YW\n");
}

TEST_F(TextReport, SaysThatThereIsNoBattery)
{
    removeBattery();
    platform.registry.entries.clear();
    platform.systemFiles.files.clear();
    make();
    state = map({
        {"statusItem", map({{"title", text("")}, {"image", text("AppIconBW")}})},
        {"battery", QVariant()},
        {"isAppLoginItem", true},
    });
    EXPECT_EQ(report(), "Status item\n"
                        "  Starts at login  yes\n"
                        "\n"
                        "Battery\n"
                        "  None             this computer has no battery\n"
                        "\n"
                        "Computer\n"
                        "  Name             Demo Computer\n");
}

TEST_F(TextReport, HasAGroupOfDevicesWhereThereAreAny)
{
    addDevices();
    make();
    EXPECT_NE(report().find("\nDevices\n"
                            "  Marathon Mouse M705  85 %\n"
                            "  K750 Keyboard        Low\n"
                            "\nComputer\n"),
              std::string::npos)
        << report();
    EXPECT_NE(report().find("  Charge limit         80 %\n"), std::string::npos);
}

TEST_F(TextReport, HasNoBarOfAFigureThatIsNotKnown)
{
    setBattery("MaxCapacity", 0);
    make();
    EXPECT_EQ(report().find("bar"), std::string::npos) << report();
}

TEST_F(TextReport, KeepsControlCharactersFromTheTerminal)
{
    makeDemo();
    mac->setProperty("Name", QStringLiteral("x\x1b[31my"));
    state = map({{"statusItem", map({{"title", text("a\x1b[31mb\nc")}})}});
    EXPECT_NE(report().find("a [31mb c\n"), std::string::npos);
    EXPECT_NE(report().find("x [31my\n"), std::string::npos);
}

} // namespace
