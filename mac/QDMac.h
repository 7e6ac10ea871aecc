#pragma once

#include <memory>
#include <optional>

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariant>

namespace quindle {

class QDBattery;
struct Platform;

/// The model of the computer: model identifier, serial number, names, build date and age, and the battery it
/// owns. Its values are read once, when it is made; only `toggleAge` changes one of them afterwards. Texts
/// may be missing (invalid when read by key), which is not the same as empty. Main thread only.
class QDMac : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject* Battery READ batteryObject NOTIFY changed)
    Q_PROPERTY(QVariant OSXVersion MEMBER m_OSXVersion NOTIFY changed)
    Q_PROPERTY(QVariant Model MEMBER m_model NOTIFY changed)
    Q_PROPERTY(QVariant Type MEMBER m_type NOTIFY changed)
    Q_PROPERTY(QVariant Name MEMBER m_name NOTIFY changed)
    Q_PROPERTY(QVariant LongModel MEMBER m_longModel NOTIFY changed)
    Q_PROPERTY(QVariant ManufactureDate MEMBER m_manufactureDate NOTIFY changed)
    Q_PROPERTY(QVariant ManufactureDateString MEMBER m_manufactureDateString NOTIFY changed)
    Q_PROPERTY(QVariant Serial MEMBER m_serial NOTIFY changed)
    Q_PROPERTY(QVariant CustomAge MEMBER m_customAge NOTIFY changed)
    Q_PROPERTY(QString privateFrameworksURL READ privateFrameworksURL CONSTANT)

public:
    /// This computer: reads every value (`loadSettings`), then makes the battery object, opens it, and when
    /// there is a battery starts its timer and refreshes it once; without one `Battery` is null.
    static std::unique_ptr<QDMac> init(const Platform& platform);

    /// The demonstration computer with fixed values; touches no platform service but the settings and the
    /// clock. The argument is not used.
    static std::unique_ptr<QDMac> initWithDemoMode(const Platform& platform, bool demoMode);

    /// A computer with nothing but the initial values. The arguments are not used.
    static std::unique_ptr<QDMac> initWithHost(const Platform& platform, const QString& host,
                                               const QString& user, const QString& pass);

    ~QDMac() override;

    /// Reads every value but the battery, in a fixed order.
    void loadSettings();

    /// Finds a battery that was inserted in the meantime, and drops one that was removed: `Battery` is then
    /// another object, or null. True when that has happened. Only on a computer whose batteries come and go
    /// (see IORegistry::isMatched).
    bool followBattery();

    /// Days → months → years → days for `CustomAge`, and stores the mode ("QDMacAgeMode").
    Q_INVOKABLE void toggleAge();

    /// Renews `CustomAge` in the mode (0 days, 1 months, 2 years) that another process has stored: storing it
    /// once more could undo a further change there.
    void showAgeInMode(qint64 mode);

    /// The identifier of this computer in snapshots: the MD5 digest of serial number and model, both read
    /// anew.
    QString generateMacID() const;

    /// The characters of the serial number, read anew, that date the computer; empty for an unusual length.
    QString getBuildDateSerialString() const;

    /// The configuration code, the last characters of the serial number, read anew: three of eleven, four of
    /// twelve; empty for any other length or without a serial.
    QString getModelStringFromSerial() const;

    /// The operating system's marketing name, from the version in its property list; nothing when unreadable.
    std::optional<QString> localGetOSXVersion() const;

    /// The machine type of a model identifier, e.g. "MacBook Air"; empty for an unknown one.
    static QString convertToTypeFromModel(const QString& model);

    /// The name of the system's picture of this model, from the file at `privateFrameworksURL`; nothing when
    /// file, model or key is missing.
    std::optional<QString> hardwareImageName() const;

    /// The path of the operating system's table of machine attributes.
    static QString privateFrameworksURL();

    /// The snapshot record of this moment (see mac/SnapshotRecord.h); nothing without a battery. Packed date,
    /// raw entry and both identifiers of the computer are read anew, the rest stands as last refreshed. The
    /// flag changes nothing.
    std::optional<QVariantMap> getDataForSaving(bool flag) const;

    /// Null on a computer without a battery.
    QDBattery* Battery() const { return m_battery.get(); }

    std::optional<QString> OSXVersion() const;
    std::optional<QString> Model() const;
    std::optional<QString> Type() const;
    std::optional<QString> Name() const;
    std::optional<QString> LongModel() const;
    QDateTime ManufactureDate() const;
    std::optional<QString> ManufactureDateString() const;
    std::optional<QString> Serial() const;
    std::optional<QString> CustomAge() const;

    /// Whether `ManufactureDate` comes from the serial number or was given by key, and is not the moment of
    /// the launch.
    bool knowsManufactureDate() const { return m_knowsManufactureDate; }

    /// Made by `initWithDemoMode`: the platform's services know nothing about it.
    bool isDemonstration() const { return m_isDemonstration; }

    /// The age mode: 0 days, 1 months, 2 years; whatever was stored, also another number, which shows days.
    qint64 ageMode() const { return m_ageMode; }

Q_SIGNALS:
    /// Some property may have changed.
    void changed();

private:
    explicit QDMac(const Platform& platform);

    QObject* batteryObject() const;
    void createBattery();
    void dropBattery();
    void setAgeMode(qint64 mode);

    const Platform& m_platform;
    std::unique_ptr<QDBattery> m_battery;
    QVariant m_OSXVersion;
    QVariant m_model;
    QVariant m_type;
    QVariant m_name;
    QVariant m_longModel;
    QVariant m_manufactureDate;
    QVariant m_manufactureDateString;
    QVariant m_serial;
    QVariant m_customAge;
    qint64 m_ageMode = 0;
    bool m_followsBattery = false; // the demonstration battery is in no registry
    bool m_knowsManufactureDate = true;
    bool m_isDemonstration = false;
};

} // namespace quindle
