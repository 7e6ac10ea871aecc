#pragma once

#include <vector>

#include "facts/Fact.h"

namespace quindle {

class QDMac;

/// Adds what is told of the computer. Null: the same facts, and none of them shown.
void addComputerFacts(std::vector<Fact>& facts, FactPlace place, const QDMac* mac);

} // namespace quindle
