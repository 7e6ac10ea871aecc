#pragma once

#include <vector>

#include "facts/Fact.h"

namespace quindle {

class QDMac;

/// Adds the facts of the computer. With null the same facts are added and none is shown.
void addComputerFacts(std::vector<Fact>& facts, FactPlace place, const QDMac* mac);

} // namespace quindle
