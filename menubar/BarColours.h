#pragma once

#include <optional>

namespace quindle {

enum class BarColour { Green, Yellow, Red };

/// The charge bar: green from 40 %, yellow from 20, red from 0; nothing (the bar stays as it is) when
/// negative or not a number.
std::optional<BarColour> chargeBarColour(double stateOfCharge);

/// The health bar: green from 80 % health. Below that the bands test the charge, not the health: yellow above
/// 60 and below 80 % charge, else red from 0; nothing when the charge is negative or not a number.
std::optional<BarColour> healthBarColour(double stateOfHealth, double stateOfCharge);

} // namespace quindle
