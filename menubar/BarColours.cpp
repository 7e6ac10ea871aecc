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
    // inherited: below 80 % health the charge is tested, and 80 % of it or more is red.
    if (stateOfCharge > 60 && stateOfCharge < 80)
        return BarColour::Yellow;
    if (stateOfCharge >= 0)
        return BarColour::Red;
    return std::nullopt;
}

} // namespace quindle
