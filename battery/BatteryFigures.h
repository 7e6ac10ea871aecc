#pragma once

#include <QtGlobal>

/// The battery's figures in plain doubles, unrounded and unguarded: a division by 0 is infinite or not a
/// number, and is passed on as such.
namespace quindle {

/// part ÷ whole × 100, in this order: 29 of 100 is 28.999999999999996.
double percentage(qint64 part, qint64 whole);

/// The power through the battery in watts, never negative, from millivolts and milliamperes.
double wattThroughput(qint64 voltage, qint64 amperage);

} // namespace quindle
