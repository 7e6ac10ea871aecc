#include "inspect/Metrics.h"

#include <cmath>
#include <optional>
#include <vector>

#include <QLocale>

#include "app/BatterySample.h"
#include "battery/QDBattery.h"
#include "facts/ValueTexts.h"
#include "mac/QDMac.h"
#include "samples/Sample.h"

namespace quindle {

namespace {

constexpr double percentOfWhole = 100;
constexpr double coulombsOfMilliampereHour = 3.6;
constexpr double decimals = 1e4; // of what is printed; no value is more exact

/// A quantity by its name in the text.
struct Gauge
{
    const char* name;
    const char* help;
    std::optional<double> (*value)(const QDMac& mac, const QDBattery& battery);
};

struct Label
{
    const char* name;
    QString value; ///< empty where it is not known
};

std::optional<double> ratio(double percent)
{
    return std::isfinite(percent) ? std::optional(percent / percentOfWhole) : std::nullopt;
}

/// Drivers that do not know report 0 or less.
std::optional<double> known(qint64 count)
{
    return count > 0 ? std::optional(static_cast<double>(count)) : std::nullopt;
}

std::optional<double> coulombs(qint64 milliampereHours)
{
    const auto amount = known(milliampereHours);
    return amount ? std::optional(*amount * coulombsOfMilliampereHour) : std::nullopt;
}

std::optional<double> charge(const QDMac& /*mac*/, const QDBattery& battery)
{
    return ratio(battery.StateOfCharge());
}

std::optional<double> health(const QDMac& /*mac*/, const QDBattery& battery)
{
    return battery.FullChargeCapacity() > 0 ? ratio(battery.StateOfHealth()) : std::nullopt;
}

std::optional<double> fullCharge(const QDMac& /*mac*/, const QDBattery& battery)
{
    return coulombs(battery.FullChargeCapacity());
}

std::optional<double> designCapacity(const QDMac& /*mac*/, const QDBattery& battery)
{
    return coulombs(battery.DesignCapacity());
}

std::optional<double> cycles(const QDMac& /*mac*/, const QDBattery& battery)
{
    return known(battery.CycleCount());
}

std::optional<double> power(const QDMac& /*mac*/, const QDBattery& battery)
{
    return batteryPower(battery);
}

std::optional<double> temperature(const QDMac& mac, const QDBattery& battery)
{
    // The demonstration battery's is a text only.
    if (!battery.knowsTemperature() || mac.isDemonstration())
        return std::nullopt;
    return battery.temperatureValue(TemperatureUnit::Celsius);
}

constexpr Gauge gauges[]{
    {"charge_ratio", "Charge held, as a share of the full charge.", charge},
    {"health_ratio", "Full charge, as a share of the design capacity.", health},
    {"full_charge_coulombs", "Charge that the battery holds when it is full.", fullCharge},
    {"design_capacity_coulombs", "Charge that it held when it was new.", designCapacity},
    {"cycles", "Charge cycles that the battery has counted.", cycles},
    {"power_watts", "Power into the battery, negative while it discharges.", power},
    {"temperature_celsius", "Temperature of the battery.", temperature},
};

constexpr SampleState states[]{SampleState::Discharging, SampleState::Charging, SampleState::Full,
                               SampleState::Unknown};

/// Whole numbers without a point, others with the fewest digits that say the same.
QByteArray numberText(double value)
{
    const double rounded = std::round(value * decimals) / decimals + 0.0; // and no "-0"
    return QByteArray::number(rounded, 'g', QLocale::FloatingPointShortest);
}

QByteArray escaped(const QString& text)
{
    QByteArray bytes = text.toUtf8();
    bytes.replace('\\', "\\\\");
    bytes.replace('"', "\\\"");
    bytes.replace('\n', "\\n");
    return bytes;
}

QByteArray familyHead(const QByteArray& name, const QByteArray& help)
{
    return "# HELP quindle_battery_" + name + ' ' + help + "\n# TYPE quindle_battery_" + name + " gauge\n";
}

QByteArray line(const QByteArray& name, const QByteArray& labels, const QByteArray& value)
{
    return "quindle_battery_" + name + labels + ' ' + value + '\n';
}

/// All in one, with the others as they come.
QByteArray labelsText(const std::vector<Label>& labels)
{
    QByteArrayList texts;
    for (const Label& label : labels)
        if (!label.value.isEmpty())
            texts.append(QByteArray(label.name) + "=\"" + escaped(label.value) + '"');
    return texts.isEmpty() ? QByteArray() : '{' + texts.join(',') + '}';
}

QByteArray gaugeLines(const QDMac& mac, const QDBattery& battery)
{
    QByteArray lines;
    for (const Gauge& gauge : gauges)
        if (const auto value = gauge.value(mac, battery); value && std::isfinite(*value))
            lines += familyHead(gauge.name, gauge.help) + line(gauge.name, {}, numberText(*value));
    return lines;
}

/// A line for each state, so that rules can ask for one and durations add up.
QByteArray stateLines(const QDBattery& battery)
{
    QByteArray lines = familyHead("state", "1 for what the battery does, 0 for what else it could do.");
    const SampleState present = sampleState(battery);
    for (const SampleState state : states)
        lines += line("state", "{state=\"" + sampleStateName(state).toByteArray() + "\"}",
                      state == present ? "1" : "0");
    return lines;
}

QByteArray infoLines(const QDMac& mac, const QDBattery& battery)
{
    const std::vector<Label> labels{{"manufacturer", knownText(battery.Manufacturer())},
                                    {"device", knownText(battery.DeviceName())},
                                    {"computer", knownText(mac.Model())}};
    return familyHead("info", "What the battery is, and what computer it is in; always 1.") +
           line("info", labelsText(labels), "1");
}

} // namespace

QByteArray metricsText(const QDMac& mac)
{
    const QDBattery* battery = mac.Battery();
    QByteArray text;
    if (battery)
        text = infoLines(mac, *battery) + gaugeLines(mac, *battery) + stateLines(*battery);
    return text + "# EOF\n";
}

} // namespace quindle
