#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>

#include "samples/Sample.h"

/// Samples as text: one line each, "MOMENT CHARGE POWER STATE", for a program that reads them from its
/// standard input. Pure functions for any thread.
namespace quindle {

/// "discharging", "charging", "full" or "unknown".
QByteArrayView sampleStateName(SampleState state);

/// The state of that name; nothing for any other text.
std::optional<SampleState> sampleStateNamed(QByteArrayView name);

/// A sample as a line with its end: whole seconds, percent and watts with at most two decimals, "-" for a
/// power that is not known or not finite. ASCII and a decimal point in every locale. `sampleFromLine` refuses
/// the line of a sample whose moment or charge is outside what Sample allows.
QByteArray sampleLine(const Sample& sample);

/// The sample of a line, with or without its end. Nothing for anything that `sampleLine` does not write:
/// another number of words or blanks, an exponent, a third decimal, a charge above 100, a moment before 1970
/// or after the year 9999.
std::optional<Sample> sampleFromLine(QByteArrayView line);

} // namespace quindle
