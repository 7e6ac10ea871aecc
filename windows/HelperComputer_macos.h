#pragma once

#include <memory>

#include "app/HelperComputer.h"

namespace quindle {

struct Machine;

/// This Mac. Both need a QApplication.
std::unique_ptr<HelperComputer> thisMac();

/// A recorded computer in this Mac's menu bar.
std::unique_ptr<HelperComputer> machineOnMac(const Machine& machine);

} // namespace quindle
