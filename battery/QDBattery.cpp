#include "battery/QDBattery.h"

#include <cmath>

#include <QPointer>

#include "battery/BatteryFigures.h"
#include "battery/BatteryStateRule.h"
#include "battery/DetailRows.h"
#include "battery/ManufactureDate.h"
#include "battery/ManufacturerName.h"
#include "battery/RatedCapacities.h"
#include "common/AgeText.h"
#include "common/Digests.h"
#include "common/FatalError.h"
#include "common/NumberConversion.h"
#include "common/NumberTexts.h"
#include "common/ValueDescription.h"
#include "platform/Host.h"
#include "platform/Platform.h"
#include "platform/PowerSources.h"
#include "platform/RunLoop.h"
#include "platform/UserDefaults.h"
#include "settings/SettingsTable.h"

namespace quindle {

namespace {

constexpr double refreshInterval = 5.0; // seconds

// The whole interval, so that its ticks fall together with those of the item's timer: the processor wakes
// once for both.
constexpr double refreshTolerance = 5.0;

[[noreturn]] void endForStoredMode(const UserDefaults& defaults, const Setting<qint64>& setting,
                                   qint64 number)
{
    // The file is named because only editing it helps: the program ends at every start until then.
    const QString file = defaults.file();
    const QString key = setting.name();
    const QString place = file.isEmpty() ? key : file + QStringLiteral(": ") + key;
    fatalError(QString(place + QStringLiteral(": %1 is none of 0, 1 and 2").arg(number)));
}

/// The stored mode; the stored number must be one of the mode's three.
template <typename Mode>
Mode storedMode(const UserDefaults& defaults, const Setting<qint64>& setting)
{
    const qint64 number = defaults.integer(setting.name());
    if (number < 0 || number > 2) // inherited: fatal; no toggle or preference stores another
        endForStoredMode(defaults, setting, number);
    return static_cast<Mode>(number);
}

template <typename Mode>
void storeMode(UserDefaults& defaults, const Setting<qint64>& setting, Mode mode)
{
    defaults.setInteger(setting.name(), static_cast<qint64>(mode));
}

} // namespace

QDBattery::QDBattery(const Platform& platform, const QString& macModel)
    : m_platform(platform)
    , m_macModel(macModel)
{
    loadSettings();
}

QDBattery::~QDBattery()
{
    if (m_service != 0)
        close();
}

void QDBattery::loadSettings()
{
    const UserDefaults& defaults = m_platform.userDefaults.standard();
    m_temperatureMode = storedMode<TemperatureUnit>(defaults, Keys::batteryTemperatureMode);
    m_ageMode = storedMode<AgeFieldMode>(defaults, Keys::batteryAgeMode);
}

IOStatus QDBattery::open()
{
    if (m_service != 0)
        return kIOReturnStillOpen;
    m_service = m_platform.registry.serviceMatchingName(QStringLiteral("AppleSmartBattery"));
    return m_service == 0 ? kIOReturnNotFound : kIOReturnSuccess;
}

IOStatus QDBattery::close()
{
    // The handle is dropped whatever the registry answers, so that the entry can be opened again.
    const IOStatus status = m_platform.registry.release(m_service);
    m_service = 0;
    return status;
}

void QDBattery::invokeTimer()
{
    // A timer that was replaced may outlive the battery.
    const auto refresh = [battery = QPointer<QDBattery>(this)] {
        if (battery)
            battery->updateData();
    };
    // inherited: an earlier timer is forgotten but runs on, so two calls mean two refreshes per interval.
    m_updateTimer = m_platform.runLoop.scheduleRepeatingTimer(refreshInterval, refreshTolerance, refresh);
}

void QDBattery::updateData()
{
    // The order is fixed, as later figures depend on earlier ones. Every read asks the computer; nothing is
    // cached in between.
    updateIdentity();
    m_cycleCount = cycleCount();
    updateCapacities();
    m_temperature = getCustomTemperature();
    m_knowsTemperature = registryDouble(BatteryRegistryKey::Temperature).has_value();
    updatePercentages();
    // At each refresh: packs are swapped while the program runs.
    m_batteryID = generateBatteryID();
    m_adapterWatt = variantFromOptional(adapterWatt());
    updateWattThroughput();
    updateAge();
    updateState();
    updateAdapterConnected();
    permanentFailure(); // inherited: read but not shown, the text stays "No Errors"
    getFailureKeys();
    updateDetailRows();
    Q_EMIT changed();
}

void QDBattery::updateIdentity()
{
    m_manufacturer = variantFromOptional(manufacturer(false));
    m_manufacturerRaw = variantFromOptional(manufacturer_unsafe());
    m_deviceName = variantFromOptional(deviceName());
    m_serialNumber = serialNumber();
}

void QDBattery::updateCapacities()
{
    m_reportedDesignCapacity = designCapacity();
    m_actualDesignCapacity = listActualDesignCapacity(m_macModel);
    // Health is measured against the capacity that the manufacturer states, where one is known.
    m_designCapacity = m_actualDesignCapacity != 0 ? m_actualDesignCapacity : designCapacity();
    m_currentCapacity = currentCapacity();
    m_fullChargeCapacity = maxCapactiy();
}

void QDBattery::updatePercentages()
{
    // inherited: not guarded; a capacity of 0 gives an infinite percentage or none, and readers expect it.
    m_stateOfCharge = percentage(m_currentCapacity, m_fullChargeCapacity);
    m_stateOfHealth = percentage(m_fullChargeCapacity, m_designCapacity);
}

void QDBattery::updateWattThroughput()
{
    const auto millivolts = knownInteger(BatteryRegistryKey::Voltage);
    const auto milliamperes = knownInteger(BatteryRegistryKey::Amperage);
    m_knowsCurrent = milliamperes.has_value();
    m_knowsPower = millivolts && milliamperes;
    // A missing factor counts as 0, and that is stored; facts ask m_knowsPower before they show it.
    m_wattThroughput = wattThroughput(millivolts.value_or(0), milliamperes.value_or(0));
}

void QDBattery::updateAge()
{
    const QDateTime made = decodeManufactureDate(manufactureDate());
    const QDateTime now = m_platform.clock.now().toLocalTime(); // once for both
    m_manufactureDate = made;
    m_customAge = ageText(static_cast<int>(m_ageMode), made, now);
    m_legacyAgeInMonths = wholeMonths(made, now);
}

void QDBattery::updateState()
{
    // inherited: three tests and no fourth state. With an adapter that neither charges nor fills, the texts
    // stay as they were.
    if (isCharged() && isACPowered())
        setStateTexts(chargedTexts());
    // Later tests overwrite: a battery that is full and charges is charging.
    if (isCharging()) {
        const QString timeToFull = avgTimeToFullFormatted();
        setStateTexts(chargingTexts(timeToFull, isUnknownTime(BatteryRegistryKey::AvgTimeToFull)));
    }
    if (!isACPowered() && !isCharging()) {
        const QString timeToEmpty = avgTimeToEmptyFormatted();
        setStateTexts(dischargingTexts(timeToEmpty, isUnknownTime(BatteryRegistryKey::AvgTimeToEmpty)));
    }
}

void QDBattery::setStateTexts(const BatteryStateTexts& texts)
{
    m_batteryState = texts.batteryState;
    m_stateText = texts.stateText;
    m_remainingString = texts.remainingString;
    m_timeRemaining = texts.timeRemaining;
}

bool QDBattery::isUnknownTime(BatteryRegistryKey key) const
{
    // A missing time reads as 0 and is shown as "0:00", not as "Calculating...".
    return registryInteger(key) == unknownMinutes;
}

void QDBattery::updateAdapterConnected()
{
    m_adapterConnected = isACPowered() ? QStringLiteral("Connected") : QStringLiteral("Not connected");
}

void QDBattery::updateDetailRows()
{
    m_raw = collectAllAvailableDataForBattery();
    // Without a source, or a first one with the word, the last word stays.
    if (m_raw.isEmpty())
        return;
    // The service lists the computer's own battery first.
    const QVariant health = m_raw.constFirst().toMap().value(QStringLiteral("BatteryHealth"));
    if (health.isValid())
        m_batteryHealth = health.toString();
}

double QDBattery::charge() const
{
    const qint64 current = currentCapacity();
    return std::floor(percentage(current, maxCapactiy()));
}

QString QDBattery::timeRemainingFormatted() const
{
    return formatMinutes(timeRemaining());
}

QString QDBattery::avgTimeToFullFormatted() const
{
    return formatMinutes(avgTimeToFull());
}

QString QDBattery::avgTimeToEmptyFormatted() const
{
    return formatMinutes(avgTimeToEmpty());
}

QString QDBattery::instantTimeToEmptyFormatted() const
{
    return formatMinutes(instantTimeToEmpty());
}

std::optional<QString> QDBattery::manufacturer(bool raw) const
{
    auto reported = manufacturer_unsafe();
    if (raw || !reported)
        return reported;
    return manufacturerName(std::move(*reported));
}

QString QDBattery::generateBatteryID() const
{
    const QString serial = serialNumber();
    // No separator: identifiers of stored snapshots were made that way.
    return md5Hex(serial + integerText(manufactureDate()));
}

std::optional<QString> QDBattery::adapterWatt() const
{
    const auto details = m_platform.powerSources.externalAdapterDetails();
    if (!details)
        return std::nullopt;
    const auto watts = details->constFind(QStringLiteral("Watts"));
    if (watts == details->cend())
        return std::nullopt;
    return valueDescription(*watts) + QStringLiteral(" Watts");
}

double QDBattery::temperatureValue(TemperatureUnit unit) const
{
    const auto raw = registryDouble(BatteryRegistryKey::Temperature);
    return raw ? convertTemperature(*raw, unit) : 0.0;
}

QString QDBattery::getCustomTemperature() const
{
    return shortestText(temperatureValue(m_temperatureMode)) + unitSign(m_temperatureMode);
}

void QDBattery::toggleTemperatureMode()
{
    // inherited: Kelvin stays: whoever chose it in the preferences does not lose it to a click.
    if (m_temperatureMode == TemperatureUnit::Celsius)
        m_temperatureMode = TemperatureUnit::Fahrenheit;
    else if (m_temperatureMode == TemperatureUnit::Fahrenheit)
        m_temperatureMode = TemperatureUnit::Celsius;
    m_temperature = getCustomTemperature();
    // Also when Kelvin stayed: the same value is not written twice.
    storeMode(m_platform.userDefaults.standard(), Keys::batteryTemperatureMode, m_temperatureMode);
    Q_EMIT changed();
}

void QDBattery::toggleAge()
{
    m_ageMode = static_cast<AgeFieldMode>((static_cast<int>(m_ageMode) + 1) % 3);
    // There is no date before the first refresh, and the text stays empty.
    if (const auto made = ManufactureDate())
        m_customAge = ageText(static_cast<int>(m_ageMode), *made, m_platform.clock.now());
    storeMode(m_platform.userDefaults.standard(), Keys::batteryAgeMode, m_ageMode);
    Q_EMIT changed();
}

qint64 QDBattery::listActualDesignCapacity(const QString& macModel)
{
    return ratedCapacity(macModel);
}

std::optional<QDateTime> QDBattery::calculateManufactureDate(qint64 packed)
{
    return decodeManufactureDate(packed);
}

// inherited: without a caller in this program; gives the same days as the one above, at noon.
std::optional<QDateTime> QDBattery::calculateManufactureDate_deprecated(qint64 packed)
{
    return decodeManufactureDateByDigits(packed);
}

bool QDBattery::knowsManufactureDate() const
{
    constexpr int firstPackedYear = 1980; // packed dates count from it, and an empty one falls before
    const auto made = ManufactureDate();
    return made && made->date().year() >= firstPackedYear;
}

// inherited: asks the service and returns nothing; a service that cannot be asked is fatal here first.
QStringList QDBattery::getFailureKeys() const
{
    describePowerSources(m_platform.powerSources);
    return {};
}

QVariantList QDBattery::collectAllAvailableDataForBattery() const
{
    QVariantList rows;
    for (const QVariantMap& description : describePowerSources(m_platform.powerSources))
        rows.append(detailRow(description));
    return rows;
}

std::optional<QString> QDBattery::Manufacturer() const
{
    return convertToText(m_manufacturer);
}

std::optional<QString> QDBattery::ManufacturerRaw() const
{
    return convertToText(m_manufacturerRaw);
}

std::optional<QString> QDBattery::SerialNumber() const
{
    return convertToText(m_serialNumber);
}

std::optional<QDateTime> QDBattery::ManufactureDate() const
{
    if (m_manufactureDate.typeId() != QMetaType::QDateTime)
        return std::nullopt;
    return m_manufactureDate.toDateTime();
}

std::optional<QString> QDBattery::DeviceName() const
{
    return convertToText(m_deviceName);
}

std::optional<QString> QDBattery::AdapterWatt() const
{
    return convertToText(m_adapterWatt);
}

QString QDBattery::CycleCount_Desc()
{
    return QStringLiteral("The number of charge/discharge cycles the battery has experienced.");
}

QString QDBattery::ReportedDesignCapacity_Desc()
{
    return QStringLiteral(
        "The capacity the battery reports it had after it left the factory. (stored in the Firmware)");
}

QString QDBattery::ActualDesignCapacity_Desc()
{
    return QStringLiteral(
        "The actual capacity the battery had after it left the factory. (reported by the manufacturer)");
}

} // namespace quindle

#include "moc_QDBattery.cpp"
