#pragma once

#include <memory>
#include <optional>

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariant>

#include "battery/BatteryRegistryKey.h"
#include "battery/TemperatureUnit.h"
#include "platform/IORegistry.h"

namespace quindle {

class Timer;
struct BatteryStateTexts;
struct Platform;

/// How an age is shown; stored as its number.
enum class AgeFieldMode { Days = 0, Months = 1, Years = 2 };

/// The model of the one battery: finds its registry entry ("AppleSmartBattery"), reads single values on
/// demand and copies at each refresh what the rest of the program shows into properties, which are read by
/// key for the interface bindings. Capacities are in mAh, voltages in mV, currents in mA (negative while
/// discharging), times in minutes (65535: not known yet), percentages unrounded.
///
/// A registry value of another type than expected, and a stored mode outside 0 to 2, end the program. A value
/// that is missing reads as 0, false, empty or nothing, as each function says. Main thread only.
class QDBattery : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariant Manufacturer MEMBER m_manufacturer NOTIFY changed)
    Q_PROPERTY(QVariant ManufacturerRaw MEMBER m_manufacturerRaw NOTIFY changed)
    Q_PROPERTY(QVariant SerialNumber MEMBER m_serialNumber NOTIFY changed)
    Q_PROPERTY(QVariant ManufactureDate MEMBER m_manufactureDate NOTIFY changed)
    Q_PROPERTY(QVariant DeviceName MEMBER m_deviceName NOTIFY changed)
    Q_PROPERTY(QString BatteryID MEMBER m_batteryID NOTIFY changed)
    Q_PROPERTY(qint64 LegacyAgeInMonths MEMBER m_legacyAgeInMonths NOTIFY changed)
    Q_PROPERTY(QString MacModel MEMBER m_macModel NOTIFY changed)
    Q_PROPERTY(qint64 CycleCount MEMBER m_cycleCount NOTIFY changed)
    Q_PROPERTY(QString CycleCount_Desc READ CycleCount_Desc CONSTANT)
    Q_PROPERTY(qint64 DesignCapacity MEMBER m_designCapacity NOTIFY changed)
    Q_PROPERTY(qint64 ReportedDesignCapacity MEMBER m_reportedDesignCapacity NOTIFY changed)
    Q_PROPERTY(QString ReportedDesignCapacity_Desc READ ReportedDesignCapacity_Desc CONSTANT)
    Q_PROPERTY(qint64 ActualDesignCapacity MEMBER m_actualDesignCapacity NOTIFY changed)
    Q_PROPERTY(QString ActualDesignCapacity_Desc READ ActualDesignCapacity_Desc CONSTANT)
    Q_PROPERTY(QString PermanentFailureString MEMBER m_permanentFailureString NOTIFY changed)
    Q_PROPERTY(qint64 CurrentCapacity MEMBER m_currentCapacity NOTIFY changed)
    Q_PROPERTY(qint64 FullChargeCapacity MEMBER m_fullChargeCapacity NOTIFY changed)
    Q_PROPERTY(QString BatteryHealth MEMBER m_batteryHealth NOTIFY changed)
    Q_PROPERTY(QString BatteryState MEMBER m_batteryState NOTIFY changed)
    Q_PROPERTY(QString StateText MEMBER m_stateText NOTIFY changed)
    Q_PROPERTY(QString TimeRemaining MEMBER m_timeRemaining NOTIFY changed)
    Q_PROPERTY(QString RemainingString MEMBER m_remainingString NOTIFY changed)
    Q_PROPERTY(QVariant AdapterWatt MEMBER m_adapterWatt NOTIFY changed)
    Q_PROPERTY(QString AdapterConnected MEMBER m_adapterConnected NOTIFY changed)
    Q_PROPERTY(double StateOfCharge MEMBER m_stateOfCharge NOTIFY changed)
    Q_PROPERTY(double StateOfHealth MEMBER m_stateOfHealth NOTIFY changed)
    Q_PROPERTY(double WattThroughput MEMBER m_wattThroughput NOTIFY changed)
    Q_PROPERTY(QString Temperature MEMBER m_temperature NOTIFY changed)
    Q_PROPERTY(QString CustomAge MEMBER m_customAge NOTIFY changed)
    Q_PROPERTY(QVariantList raw MEMBER m_raw NOTIFY changed)

public:
    /// Reads both modes from the helper's own settings (`QDBatteryTemperatureMode`, `QDBatteryAgeMode`);
    /// touches nothing else. `macModel` is the model identifier, e.g. "MacBookAir6,2".
    QDBattery(const Platform& platform, const QString& macModel);
    ~QDBattery() override;

    /// Reads both modes again. A stored number outside 0 to 2 is fatal.
    void loadSettings();

    /// Finds the registry entry by name. 0, `kIOReturnStillOpen` when it is open already (nothing changes) or
    /// `kIOReturnNotFound` on a computer without a battery.
    IOStatus open();

    /// Releases the entry and returns the release's status. The properties keep their values until the next
    /// refresh; `open` may be called again.
    IOStatus close();

    /// Starts a refresh every 5.0 s, with 5.0 s of tolerance. A second call starts another timer beside the
    /// first.
    void invokeTimer();

    /// The refresh: copies every value, each read afresh from the registry, in a fixed order.
    void updateData();

    /// The whole registry entry; empty when it is not open or cannot be read.
    QVariantMap getRawData() const;

    // One registry value each, read now. Integers are 0, booleans false when the key is missing.
    QString serialNumber() const;                       ///< "BatterySerialNumber"; empty when missing
    std::optional<QString> deviceName() const;          ///< "DeviceName"
    std::optional<QString> manufacturer_unsafe() const; ///< "Manufacturer"
    qint64 manufactureDate() const;                     ///< "ManufactureDate", packed
    qint64 currentCapacity() const;                     ///< "CurrentCapacity"
    qint64 maxCapactiy() const;                         ///< "MaxCapacity"; inherited: the spelling
    qint64 designCapacity() const;                      ///< "DesignCapacity"
    qint64 cycleCount() const;                          ///< "CycleCount"
    qint64 voltage() const;                             ///< "Voltage"
    qint64 amperage() const;                            ///< "Amperage"
    qint64 instantAmperage() const;                     ///< "InstantAmperage"
    qint64 designCycleCount() const;                    ///< "DesignCycleCount9C"
    bool isACPowered() const;                           ///< "ExternalConnected"
    bool isCharging() const;                            ///< "IsCharging"
    bool isCharged() const;                             ///< "FullyCharged"
    qint64 timeRemaining() const;                       ///< "TimeRemaining"
    qint64 avgTimeToEmpty() const;                      ///< "AvgTimeToEmpty"
    qint64 avgTimeToFull() const;                       ///< "AvgTimeToFull"
    qint64 instantTimeToEmpty() const;                  ///< "InstantTimeToEmpty"
    qint64 permanentFailure() const;                    ///< "PermanentFailureStatus", failure bits

    /// The charge in whole percent, straight from the registry: the floor of current ÷ full × 100. Infinite
    /// or not a number when the full-charge capacity is 0.
    double charge() const;

    // One time each, read now, through `formatMinutes`; a missing key gives "0:00", 65535 gives "1092:15".
    QString timeRemainingFormatted() const;
    QString avgTimeToFullFormatted() const;
    QString avgTimeToEmptyFormatted() const;
    QString instantTimeToEmptyFormatted() const;

    /// The manufacturer as read (`raw`), or with its code written out: "DP" is "Dynapack", "SMP" is "Simplo".
    std::optional<QString> manufacturer(bool raw) const;

    /// The MD5 digest of serial number and packed date, which names this battery in snapshots.
    QString generateBatteryID() const;

    /// The adapter's rating, e.g. "60 Watts"; nothing without an adapter that reports it.
    std::optional<QString> adapterWatt() const;

    /// The temperature now, one decimal; 0 in every unit when the battery reports none.
    double temperatureValue(TemperatureUnit unit) const;

    /// The temperature now in the chosen unit with its sign, e.g. "30.0 °C".
    QString getCustomTemperature() const;

    /// Celsius ↔ Fahrenheit, and stores the unit. Kelvin stays Kelvin: it is chosen in the preferences only.
    Q_INVOKABLE void toggleTemperatureMode();

    /// Days → months → years → days, and stores the mode.
    Q_INVOKABLE void toggleAge();

    /// The capacity in mAh that the manufacturer states for a model identifier; 0 for a model not listed.
    static qint64 listActualDesignCapacity(const QString& macModel);

    /// The date in a packed manufacture date (see battery/ManufactureDate.h), at midnight local time.
    static std::optional<QDateTime> calculateManufactureDate(qint64 packed);

    /// The former decoding, by digits of the binary text and at noon. inherited: nothing in the program calls
    /// it.
    static std::optional<QDateTime> calculateManufactureDate_deprecated(qint64 packed);

    /// Asks the power-source service for its sources. The result is not used; a service that cannot be asked
    /// is fatal.
    QStringList getFailureKeys() const;

    /// One row of texts for each power source, in the service's order. A service that cannot be asked is
    /// fatal.
    QVariantList collectAllAvailableDataForBattery() const;

    // Whether a figure is a reading, and not what stands in for one that the battery does not report ("0.0
    // °C", 0 W, an age counted from 1979). Values that were given by key count as known.
    bool knowsTemperature() const { return m_knowsTemperature; } ///< the last refresh found one
    bool knowsCurrent() const { return m_knowsCurrent; }         ///< the same for "Amperage"
    bool knowsPower() const { return m_knowsPower; }             ///< the same for both factors of the power
    bool knowsManufactureDate() const;                           ///< it can be packed

    TemperatureUnit temperatureMode() const { return m_temperatureMode; }
    AgeFieldMode ageMode() const { return m_ageMode; }

    // The properties as the rest of the program reads them; see the registry values above for units.
    std::optional<QString> Manufacturer() const;
    std::optional<QString> ManufacturerRaw() const;
    std::optional<QString> SerialNumber() const;
    std::optional<QDateTime> ManufactureDate() const;
    std::optional<QString> DeviceName() const;
    std::shared_ptr<Timer> updateTimer() const { return m_updateTimer; }
    const QString& BatteryID() const { return m_batteryID; }
    qint64 LegacyAgeInMonths() const { return m_legacyAgeInMonths; }
    const QString& MacModel() const { return m_macModel; }
    qint64 CycleCount() const { return m_cycleCount; }
    static QString CycleCount_Desc();
    qint64 DesignCapacity() const { return m_designCapacity; }
    qint64 ReportedDesignCapacity() const { return m_reportedDesignCapacity; }
    static QString ReportedDesignCapacity_Desc();
    qint64 ActualDesignCapacity() const { return m_actualDesignCapacity; }
    static QString ActualDesignCapacity_Desc();
    const QString& PermanentFailureString() const { return m_permanentFailureString; }
    qint64 CurrentCapacity() const { return m_currentCapacity; }
    qint64 FullChargeCapacity() const { return m_fullChargeCapacity; }
    const QString& BatteryHealth() const { return m_batteryHealth; }
    const QString& BatteryState() const { return m_batteryState; }
    const QString& StateText() const { return m_stateText; }
    const QString& TimeRemaining() const { return m_timeRemaining; }
    const QString& RemainingString() const { return m_remainingString; }
    std::optional<QString> AdapterWatt() const;
    const QString& AdapterConnected() const { return m_adapterConnected; }
    double StateOfCharge() const { return m_stateOfCharge; }
    double StateOfHealth() const { return m_stateOfHealth; }
    double WattThroughput() const { return m_wattThroughput; }
    const QString& Temperature() const { return m_temperature; }
    const QString& CustomAge() const { return m_customAge; }
    const QVariantList& raw() const { return m_raw; }

Q_SIGNALS:
    /// Some property may have changed: emitted after each refresh, toggle and write by key.
    void changed();

private:
    QVariant registryValue(BatteryRegistryKey key) const;
    std::optional<qint64> knownInteger(BatteryRegistryKey key) const;
    qint64 registryInteger(BatteryRegistryKey key) const;
    std::optional<double> registryDouble(BatteryRegistryKey key) const;
    bool registryBoolean(BatteryRegistryKey key) const;
    std::optional<QString> registryText(BatteryRegistryKey key) const;

    void updateIdentity();
    void updateCapacities();
    void updatePercentages();
    void updateWattThroughput();
    void updateAge();
    void updateState();
    void setStateTexts(const BatteryStateTexts& texts);
    bool isUnknownTime(BatteryRegistryKey key) const;
    void updateAdapterConnected();
    void updateDetailRows();

    const Platform& m_platform;

    QVariant m_manufacturer;
    QVariant m_manufacturerRaw;
    QVariant m_serialNumber;
    QVariant m_manufactureDate;
    QVariant m_deviceName;
    std::shared_ptr<Timer> m_updateTimer;
    QString m_batteryID = QStringLiteral("0");
    qint64 m_legacyAgeInMonths = 0;
    QString m_macModel;
    qint64 m_cycleCount = 0;
    qint64 m_designCapacity = 0;
    qint64 m_reportedDesignCapacity = 0;
    qint64 m_actualDesignCapacity = 0;
    QString m_permanentFailureString = QStringLiteral("No Errors");
    qint64 m_currentCapacity = 0;
    qint64 m_fullChargeCapacity = 0;
    QString m_batteryHealth = QStringLiteral("");
    QString m_batteryState = QStringLiteral("");
    QString m_stateText = QStringLiteral("Chargin with"); // inherited: the spelling
    QString m_timeRemaining = QStringLiteral("");
    QString m_remainingString = QStringLiteral("Time until empty");
    QVariant m_adapterWatt;
    QString m_adapterConnected = QStringLiteral("Not connected");
    double m_stateOfCharge = 0;
    double m_stateOfHealth = 0;
    double m_wattThroughput = 0;
    QString m_temperature = QStringLiteral("");
    QString m_customAge = QStringLiteral("");
    QVariantList m_raw;
    bool m_knowsTemperature = true;
    bool m_knowsCurrent = true;
    bool m_knowsPower = true;
    TemperatureUnit m_temperatureMode = TemperatureUnit::Celsius;
    AgeFieldMode m_ageMode = AgeFieldMode::Days;
    RegistryObject m_service = 0;
};

} // namespace quindle
