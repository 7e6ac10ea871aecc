#pragma once

#include <optional>

#include <QString>

namespace quindle {

/// Where facts are shown. Some have other words there, or are left out.
enum class FactPlace {
    View,    ///< the battery view
    Menu,    ///< the menu that the desktop draws
    ToolTip, ///< the status item's
    Report,  ///< the text report in a terminal, which is the same in every locale
};

enum class FactId {
    Charge,
    Health,
    Condition,
    State,
    Power,
    Time,
    ChargeLimit,
    FullCharge,
    Adapter,
    Cycles,
    Temperature,
    Failures,
    MadeBy,
    Manufacturer,
    Device,
    BatterySerial,
    BatteryAge,
    EachBattery,
    Peripheral,
    Computer,
    Name,
    Type,
    Model,
    System,
    ComputerSerial,
    ComputerAge,
};

/// Which facts belong together.
enum class FactGroup {
    Summary,   ///< of the battery; in the view each has a place of its own
    State,     ///< what the battery does
    Battery,   ///< what it is
    Batteries, ///< each by itself, where there are several
    Devices,   ///< batteries of devices such as a mouse
    Computer,
};

/// What a click on a fact's value does.
enum class FactClick { Nothing, BatteryAge, Temperature, ComputerAge, Capacity };

// A fact's rank: the lower, the sooner a person wants to know it.
inline constexpr int lastRankOfToolTip = 9;
inline constexpr int lastRankOfMenu = 19;    ///< in the menu itself: three at most, under the title
inline constexpr int lastRankOfDetails = 89; ///< in the menu's "Details"; what comes after is not in menus

/// One thing to show about battery, devices or computer, in the words of one place.
struct Fact
{
    FactId id = FactId::Charge;
    FactGroup group = FactGroup::Summary;
    int rank = 0;
    QString caption;
    QString value;  ///< empty where it is not known, or where the caption says all
    QString detail; ///< shown after the value; empty for most
    bool shown = false;
    QString toolTip;
    FactClick click = FactClick::Nothing;
    std::optional<double> percent; ///< for a bar; nothing where it is not known
    bool isQuiet = false;          ///< needs no attention

    bool operator==(const Fact&) const = default;
};

} // namespace quindle
