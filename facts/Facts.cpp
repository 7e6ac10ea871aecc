#include "facts/Facts.h"

#include <algorithm>

#include <QStringList>

#include "battery/QDBattery.h"
#include "common/NumberTexts.h"
#include "common/Translation.h"
#include "facts/BatteryFacts.h"
#include "facts/ComputerFacts.h"
#include "facts/ShownTexts.h"
#include "facts/SystemBatteries.h"
#include "facts/ValueTexts.h"
#include "mac/QDMac.h"
#include "platform/PowerSources.h"

namespace quindle {

namespace {

constexpr int rankOfDevices = 46; // before the computer, which hardly ever changes

const QDBattery* batteryOf(const FactSources& sources)
{
    return sources.mac ? sources.mac->Battery() : nullptr;
}

BatteryExtras extras(const FactSources& sources, FactPlace place)
{
    // The tool tip shows none of it, and is made at every refresh.
    if (place == FactPlace::ToolTip || !batteryOf(sources) || !sources.powerSources)
        return {};
    return {.chargeLimit = sources.powerSources->chargeLimit(),
            .voltageOfEnergies = sources.powerSources->voltageOfEnergies(),
            .showsWattHours = sources.showsWattHours};
}

Fact deviceFact(const PeripheralBattery& device, FactPlace place)
{
    const QString level = modelText(place, knownText(device.level));
    // The percentage says more; some devices have the level alone.
    const QString value = device.percent ? integerText(*device.percent) + QStringLiteral(" %") : level;
    return {.id = FactId::Peripheral,
            .group = FactGroup::Devices,
            .rank = rankOfDevices,
            .caption = device.name,
            .value = value,
            .detail = {},
            .shown = !value.isEmpty(),
            .toolTip = {},
            .percent = {}};
}

void addDeviceFacts(std::vector<Fact>& facts, FactPlace place, PowerSources* powerSources)
{
    // Menu and tool tip are made at every refresh, and asking some drivers sends something over the air.
    const bool isGiven = place == FactPlace::View || place == FactPlace::Report;
    if (!isGiven || !powerSources)
        return;
    for (const PeripheralBattery& device : powerSources->peripherals())
        facts.push_back(deviceFact(device, place));
}

} // namespace

std::vector<Fact> factsFor(FactPlace place, const FactSources& sources)
{
    std::vector<Fact> facts;
    addBatteryFacts(facts, place, batteryOf(sources), extras(sources, place));
    addSystemBatteryFacts(facts, place, batteryOf(sources) ? sources.powerSources : nullptr);
    addDeviceFacts(facts, place, sources.powerSources);
    addComputerFacts(facts, place, sources.mac);
    if (place != FactPlace::Report)
        // Stable: devices share one rank, and keep the order of the service.
        std::stable_sort(facts.begin(), facts.end(),
                         [](const Fact& one, const Fact& other) { return one.rank < other.rank; });
    return facts;
}

QString factText(const Fact& fact, FactPlace place)
{
    if (place == FactPlace::Report)
        return fact.detail.isEmpty() ? fact.value : fact.value + QStringLiteral(" (") + fact.detail + u')';
    const QString text = besideEachOther(fact.value, fact.detail);
    // In the view it has a label of its own.
    return place == FactPlace::View ? text : isolatedText(text);
}

const Fact& factWithId(const std::vector<Fact>& facts, FactId id)
{
    static const Fact none;
    const auto found =
        std::find_if(facts.begin(), facts.end(), [id](const Fact& fact) { return fact.id == id; });
    return found == facts.end() ? none : *found;
}

QString toolTipText(const FactSources& sources)
{
    if (!batteryOf(sources))
        return translated("Facts", "No battery");
    QStringList lines;
    for (const Fact& fact : factsFor(FactPlace::ToolTip, sources)) {
        if (fact.shown)
            lines.append(joined(fact.caption, QStringLiteral(" "), factText(fact, FactPlace::ToolTip)));
    }
    return lines.join(u'\n');
}

void performClick(FactClick click, QDMac& mac)
{
    // It may have been taken out since the fact was shown.
    QDBattery* battery = mac.Battery();
    switch (click) {
    case FactClick::Nothing:
    case FactClick::Capacity: // no model's: a setting of whoever shows it
        break;
    case FactClick::ComputerAge:
        mac.toggleAge();
        break;
    case FactClick::BatteryAge:
        if (battery)
            battery->toggleAge();
        break;
    case FactClick::Temperature:
        if (battery)
            battery->toggleTemperatureMode();
        break;
    }
}

} // namespace quindle
