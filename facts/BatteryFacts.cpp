#include "facts/BatteryFacts.h"

#include <cmath>
#include <utility>

#include "battery/BatteryStateRule.h"
#include "battery/QDBattery.h"
#include "common/DateFromText.h"
#include "common/NumberTexts.h"
#include "common/Translation.h"
#include "facts/FactRule.h"
#include "facts/ShownTexts.h"
#include "facts/ValueTexts.h"

namespace quindle {

namespace {

struct BatterySource
{
    const QDBattery& battery;
    BatteryExtras extras;
    FactPlace place;

    /// The report is for programs too, and always in mAh.
    CapacityWords words() const
    {
        const bool inWattHours = extras.showsWattHours && place != FactPlace::Report;
        return {place, inWattHours ? extras.voltageOfEnergies : std::nullopt};
    }

    /// A click switches between mAh and the driver's own Wh.
    FactClick clickOn(const QString& capacities) const
    {
        return extras.voltageOfEnergies && !capacities.isEmpty() ? FactClick::Capacity : FactClick::Nothing;
    }
};

std::optional<double> knownPercent(double percent)
{
    // A full charge of 0 makes the percentage infinite or not a number.
    return std::isfinite(percent) ? std::optional(percent) : std::nullopt;
}

FactText charge(const BatterySource& source)
{
    const QDBattery& battery = source.battery;
    const QString figure = percentText(battery.StateOfCharge(), source.place);
    const QString capacities =
        capacitiesText(battery.CurrentCapacity(), battery.FullChargeCapacity(), source.words());
    FactText text;
    text.percent = knownPercent(battery.StateOfCharge());
    text.value = figure;
    text.detail = capacities;
    text.click = source.clickOn(capacities);
    // Only the view has a place for the capacities alone.
    if (figure.isEmpty() && source.place != FactPlace::View)
        std::swap(text.value, text.detail);
    return text;
}

/// Without anything to compare with there is no health: a full charge or design capacity of 0 is unknown.
std::optional<double> knownHealth(const QDBattery& battery)
{
    return battery.FullChargeCapacity() > 0 ? knownPercent(battery.StateOfHealth()) : std::nullopt;
}

/// With nothing to compare with, only the report repeats the full charge: it has one line for both.
QString fullAgainstDesign(const BatterySource& source)
{
    const QDBattery& battery = source.battery;
    const bool isGiven = battery.DesignCapacity() > 0 || source.place == FactPlace::Report;
    return isGiven ? capacitiesText(battery.FullChargeCapacity(), battery.DesignCapacity(), source.words())
                   : QString();
}

/// The view has a place for health, so it says there that it is missing.
QString missingHealth(const BatterySource& source)
{
    if (source.place != FactPlace::View)
        return {};
    return source.battery.DesignCapacity() > 0 ? translated("Facts", "Not known", "the health")
                                               : translated("Facts", "No design capacity");
}

QString capacityDescription(qint64 capacity, const QString& description, const CapacityWords& words)
{
    const QString amount = capacitiesText(capacity, 0, words);
    return amount.isEmpty() ? amount : amount + QStringLiteral(": ") + modelText(words.place, description);
}

QString designDescription(const BatterySource& source)
{
    const QDBattery& battery = source.battery;
    // Both, as they may differ: health is measured against the stated one where there is one.
    const QString reported = capacityDescription(battery.ReportedDesignCapacity(),
                                                 QDBattery::ReportedDesignCapacity_Desc(), source.words());
    const QString actual = capacityDescription(battery.ActualDesignCapacity(),
                                               QDBattery::ActualDesignCapacity_Desc(), source.words());
    return joined(reported, QStringLiteral("\n"), actual);
}

FactText health(const BatterySource& source)
{
    const QString condition = modelText(source.place, knownText(source.battery.BatteryHealth()));
    FactText text;
    text.percent = knownHealth(source.battery);
    text.value = text.percent ? percentText(*text.percent, source.place) : missingHealth(source);
    text.detail = fullAgainstDesign(source);
    text.click = source.clickOn(text.detail);
    text.toolTip = designDescription(source);
    if (source.place == FactPlace::Report)
        return text;
    text.value = besideEachOther(text.value, condition);
    if (source.place == FactPlace::Menu)
        text.detail.clear(); // "Full charge" gives it
    return text;
}

/// For the report alone: elsewhere the word is shown with the health.
FactText condition(const BatterySource& source)
{
    return {.value = knownText(source.battery.BatteryHealth())};
}

QString power(const BatterySource& source)
{
    const QDBattery& battery = source.battery;
    return battery.knowsPower() ? wattsText(battery.WattThroughput(), source.place) : QString();
}

FactText state(const BatterySource& source)
{
    const QString state = modelText(source.place, knownText(source.battery.BatteryState()));
    // Where the power has no row of its own it follows the state.
    const bool hasOwnPower = source.place == FactPlace::View || source.place == FactPlace::Report;
    return {.value = hasOwnPower ? state : besideEachOther(state, power(source))};
}

FactText powerWithCaption(const BatterySource& source)
{
    // The caption says which way the power flows, so figures have no sign.
    return {.value = power(source), .caption = modelText(source.place, source.battery.StateText())};
}

/// Without a time the caption says that it is not estimated yet, or that the battery is full; a menu that
/// already says "Charged" does not repeat it.
FactText time(const BatterySource& source)
{
    const QDBattery& battery = source.battery;
    const bool isSaidAbove =
        source.place == FactPlace::Menu && battery.BatteryState() == chargedTexts().batteryState;
    // The report is for programs, which look for a value.
    const bool isCaptionEnough =
        source.place != FactPlace::Report && !isSaidAbove && !knownText(battery.BatteryState()).isEmpty();
    return {.value = knownText(battery.TimeRemaining()),
            .caption = modelText(source.place, battery.RemainingString()),
            .isCaptionEnough = isCaptionEnough};
}

FactText chargeLimit(const BatterySource& source)
{
    return {.value = source.extras.chargeLimit
                         ? integerText(*source.extras.chargeLimit) + QStringLiteral(" %")
                         : QString()};
}

FactText fullCharge(const BatterySource& source)
{
    return {.value = fullAgainstDesign(source)};
}

FactText adapter(const BatterySource& source)
{
    return {.value = modelText(source.place, knownText(source.battery.AdapterConnected())),
            .detail = modelText(source.place, knownText(source.battery.AdapterWatt()))};
}

FactText cycles(const BatterySource& source)
{
    const qint64 cycles = source.battery.CycleCount();
    return {.value = source.place == FactPlace::View ? cyclesText(cycles) : countText(cycles, source.place),
            .toolTip = modelText(source.place, QDBattery::CycleCount_Desc())};
}

FactText temperature(const BatterySource& source)
{
    // A battery without a sensor would be shown as "0.0 °C".
    return {.value = source.battery.knowsTemperature()
                         ? modelFigure(source.place, knownText(source.battery.Temperature()))
                         : QString()};
}

FactText failures(const BatterySource& source)
{
    // Quiet, because the text is always "No Errors".
    return {.value = modelText(source.place, knownText(source.battery.PermanentFailureString())),
            .isQuiet = true};
}

FactText manufacturer(const BatterySource& source)
{
    return {.value = knownText(source.battery.Manufacturer())};
}

FactText device(const BatterySource& source)
{
    return {.value = knownText(source.battery.DeviceName())};
}

FactText madeBy(const BatterySource& source)
{
    const QString maker = manufacturer(source).value;
    FactText text{.value = besideEachOther(maker, device(source).value)};
    // Some only name their gauge's chip, whose maker did not make the battery.
    if (maker.isEmpty())
        text.caption = source.place == FactPlace::Menu ? translated("Facts", "Battery device")
                                                       : translated("Facts", "Device");
    return text;
}

FactText serialNumber(const BatterySource& source)
{
    return {.value = knownText(source.battery.SerialNumber())};
}

FactText age(const BatterySource& source)
{
    // Most drivers give no date, and the age would be counted from 1979.
    if (!source.battery.knowsManufactureDate())
        return {};
    const QString day = dayText(*source.battery.ManufactureDate());
    const QString age = modelText(source.place, knownText(source.battery.CustomAge()));
    if (source.place == FactPlace::Report)
        return {.value = day, .detail = age};
    return {.value = age, .toolTip = translated("Facts", "Manufactured %1").arg(day)};
}

using Id = FactId;
using Group = FactGroup;
using Click = FactClick;

// In the report's order; the other places order by rank. Power and time have captions of the battery's own.
constexpr FactRule<BatterySource> batteryTable[]{
    {Id::Charge, Group::Summary, 20, everywhere(QT_TRANSLATE_NOOP("Facts", "Charge")), charge},
    {Id::Health, Group::Summary, 11, everywhere(QT_TRANSLATE_NOOP("Facts", "Health")), health},
    {Id::Condition, Group::Summary, 90, {nullptr, nullptr, "Condition"}, condition},
    {Id::State, Group::Summary, 1, {QT_TRANSLATE_NOOP("Facts", "State"), "", "State"}, state},
    {Id::Power, Group::State, 2, inViewAndReport(QT_TRANSLATE_NOOP("Facts", "Power")), powerWithCaption},
    {Id::Time, Group::State, 3, everywhere(QT_TRANSLATE_NOOP("Facts", "Time")), time},
    {Id::ChargeLimit, Group::State, 21, everywhere(QT_TRANSLATE_NOOP("Facts", "Charge limit")), chargeLimit},
    {Id::Adapter, Group::Battery, 43, everywhere(QT_TRANSLATE_NOOP("Facts", "Adapter")), adapter},
    {Id::FullCharge,
     Group::Summary,
     30,
     {nullptr, QT_TRANSLATE_NOOP("Facts", "Full charge"), nullptr},
     fullCharge},
    {Id::Cycles, Group::Summary, 31, everywhere(QT_TRANSLATE_NOOP("Facts", "Cycles")), cycles},
    {Id::Temperature, Group::Battery, 42, everywhere(QT_TRANSLATE_NOOP("Facts", "Temperature")), temperature,
     Click::Temperature},
    {Id::Failures, Group::Battery, 44, everywhere(QT_TRANSLATE_NOOP("Facts", "Failures")), failures},
    {Id::MadeBy,
     Group::Battery,
     40,
     {QT_TRANSLATE_NOOP("Facts", "Made by"), QT_TRANSLATE_NOOP("Facts", "Battery made by"), nullptr},
     madeBy},
    {Id::Manufacturer, Group::Battery, 90, {nullptr, nullptr, "Manufacturer"}, manufacturer},
    {Id::Device, Group::Battery, 90, {nullptr, nullptr, "Device"}, device},
    {Id::BatterySerial, Group::Battery, 90, inViewAndReport(QT_TRANSLATE_NOOP("Facts", "Serial number")),
     serialNumber},
    {Id::BatteryAge,
     Group::Battery,
     41,
     {QT_TRANSLATE_NOOP("Facts", "Age"), QT_TRANSLATE_NOOP("Facts", "Battery age"), "Manufactured"},
     age,
     Click::BatteryAge},
};

} // namespace

void addBatteryFacts(std::vector<Fact>& facts, FactPlace place, const QDBattery* battery,
                     const BatteryExtras& extras)
{
    std::optional<BatterySource> source;
    // Without one the facts are still made, but not shown: a menu must always have the same rows.
    if (battery)
        source.emplace(BatterySource{*battery, extras, place});
    addFacts(facts, batteryTable, place, source);
}

} // namespace quindle
