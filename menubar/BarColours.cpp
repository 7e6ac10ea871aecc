#include "menubar/BarColours.h"

namespace quindle {

std::optional<BarColour> chargeBarColour(double stateOfCharge)
{
    if (stateOfCharge >= 40)
        return BarColour::Green;
    if (stateOfCharge >= 20)
        return BarColour::Yellow;
    if (stateOfCharge >= 0)
        return BarColour::Red;
    return std::nullopt;
}

std::optional<BarColour> healthBarColour(double stateOfHealth, double stateOfCharge)
{
    if (stateOfHealth >= 80)
        return BarColour::Green;
    // Below 80 % health it is the charge that is tested: the two bars are required to differ so.
    if (stateOfCharge > 60 && stateOfCharge < 80)
        return BarColour::Yellow;
    if (stateOfCharge >= 0)
        return BarColour::Red;
    return std::nullopt;
}

} // namespace quindle
