#pragma once

#include <memory>

#include "app/HelperComputer.h"

namespace quindle {

struct Machine;

/// This Mac. Needs a QApplication, as the other.
std::unique_ptr<HelperComputer> thisMac();

/// A recorded computer in this Mac's menu bar.
std::unique_ptr<HelperComputer> machineOnMac(const Machine& machine);

} // namespace quindle
