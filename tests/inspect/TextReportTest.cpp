#include "inspect/TextReport.h"

#include <gtest/gtest.h>

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

QVariantMap batteryValues()
{
    return map({{"StateOfCharge", 61.0},
                {"CurrentCapacity", 2967},
                {"FullChargeCapacity", 4865},
                {"StateOfHealth", 89.0},
                {"DesignCapacity", 5466},
                {"BatteryState", text("Discharging...")},
                {"StateText", text("Discharging with")},
                {"WattThroughput", 4.61},
                {"RemainingString", text("Time until empty")},
                {"TimeRemaining", text("4:41")},
                {"AdapterConnected", text("Not connected")},
                {"CycleCount", 293},
                {"Temperature", text("25.8 °C")}});
}

TEST(TextReport, AlignsWhatIsThere)
{
    const QVariantMap state = map({
        {"statusItem", map({{"title", text("61.0%")}, {"image", text("#bat24")}})},
        {"bars", map({{"stateOfCharge", text("green")}, {"stateOfHealth", text("green")}})},
        {"battery", batteryValues()},
        {"mac", map({{"Name", text("Demo")}, {"Model", text("MacBookAir4,2")}, {"LongModel", QVariant()}})},
    });
    EXPECT_EQ(reportText(state).toStdString(), "Status item\n"
                                               "  Title             61.0%\n"
                                               "  Icon              #bat24\n"
                                               "  Charge bar        green\n"
                                               "  Health bar        green\n"
                                               "\n"
                                               "Battery\n"
                                               "  Charge            61.0 % (2967 mAh of 4865 mAh)\n"
                                               "  Health            89.0 % (4865 mAh of 5466 mAh)\n"
                                               "  State             Discharging...\n"
                                               "  Discharging with  4.61 W\n"
                                               "  Time until empty  4:41\n"
                                               "  Adapter           Not connected\n"
                                               "  Cycles            293\n"
                                               "  Temperature       25.8 °C\n"
                                               "\n"
                                               "Computer\n"
                                               "  Name              Demo\n"
                                               "  Model             MacBookAir4,2\n");
}

TEST(TextReport, SaysThatThereIsNoBattery)
{
    const QVariantMap state = map({
        {"statusItem", map({{"title", text("")}, {"image", text("AppIconBW")}})},
        {"battery", QVariant()},
        {"mac", map({{"Name", text("Tower")}})},
        {"isAppLoginItem", true},
    });
    EXPECT_EQ(reportText(state).toStdString(), "Status item\n"
                                               "  Icon             AppIconBW\n"
                                               "  Starts at login  yes\n"
                                               "\n"
                                               "Battery\n"
                                               "  None             this computer has no battery\n"
                                               "\n"
                                               "Computer\n"
                                               "  Name             Tower\n");
}

TEST(TextReport, KeepsControlCharactersFromTheTerminal)
{
    const QVariantMap state = map({{"statusItem", map({{"title", text("a\x1b[31mb\nc")}})}});
    EXPECT_TRUE(reportText(state).contains(QStringLiteral("a [31mb c\n")));
}

} // namespace
