#pragma once

#include <vector>

#include "facts/Fact.h"

namespace quindle {

class PowerSources;
class QDMac;

/// Where facts come from. Null where nothing is known, or nobody is to be asked.
struct FactSources
{
    const QDMac* mac = nullptr;
    PowerSources* powerSources = nullptr; ///< for the charge limit and the devices
    bool showsWattHours = false;          ///< capacities, where the driver counts energies
};

/// The facts of one place: in the tables' order for the report, elsewhere by rank. They are always the same
/// ones, shown or not; only devices, which view and report have, come and go.
std::vector<Fact> factsFor(FactPlace place, const FactSources& sources);

/// Value and detail in one text: "Connected · 60 Watts", in the report "Connected (60 Watts)".
QString factText(const Fact& fact, FactPlace place);

/// The fact with that id; if there is none, one without a text, which is not shown.
const Fact& factWithId(const std::vector<Fact>& facts, FactId id);

/// The status item's tool tip: what the battery does, then the remaining time on a line of its own; "No
/// battery" without one.
QString toolTipText(const FactSources& sources);

/// Does what a click on a fact does to the models; nothing for the battery's without a battery.
void performClick(FactClick click, QDMac& mac);

} // namespace quindle
