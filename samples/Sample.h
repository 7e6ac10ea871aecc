#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QtGlobal>

/// Samples, and how they are written for a program that reads them from its standard input: one line each,
/// "MOMENT CHARGE POWER STATE". Pure functions for any thread.
namespace quindle {

enum class SampleState { Discharging, Charging, Full, Unknown };

/// What the battery did at one moment, as far as the history of charge and power keeps it.
struct Sample
{
    qint64 moment = 0;           ///< seconds since the beginning of 1970, UTC
    double charge = 0;           ///< state of charge, percent, 0 to 100
    std::optional<double> power; ///< watts, negative while discharging; nothing where it is not known
    SampleState state = SampleState::Unknown;

    bool operator==(const Sample& other) const = default;
};

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
