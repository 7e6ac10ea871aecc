#include "mac/QDMac.h"

#include "battery/QDBattery.h"
#include "common/AgeText.h"
#include "common/DateFromText.h"
#include "common/Digests.h"
#include "common/NumberConversion.h"
#include "mac/DemoMac.h"
#include "mac/MachineType.h"
#include "mac/ModelNameLookup.h"
#include "mac/ModelText.h"
#include "mac/OSXVersionName.h"
#include "mac/PlatformExpert.h"
#include "mac/SerialNumberDecoding.h"
#include "mac/SnapshotRecord.h"
#include "platform/Host.h"
#include "platform/Platform.h"
#include "platform/RunLoop.h"
#include "platform/UserDefaults.h"
#include "settings/SettingsTable.h"

namespace quindle {

namespace {

/// A stored mode of any other number shows days, so months come next.
qint64 nextAgeMode(qint64 mode)
{
    if (mode == 1)
        return 2;
    return mode == 2 ? 0 : 1;
}

QString ageTextOfMode(qint64 mode, const QDateTime& from, const QDateTime& to)
{
    const bool isKnown = mode == 1 || mode == 2; // inherited: any other number shows days, none is fatal
    return ageText(isKnown ? static_cast<int>(mode) : 0, from, to);
}

/// inherited: the model as the text of an optional value. Identifiers of stored snapshots are made from it.
QString wrappedOptional(const std::optional<QString>& text)
{
    if (!text)
        return QStringLiteral("nil");
    return QStringLiteral("Optional(\"") + *text + QStringLiteral("\")");
}

} // namespace

QDMac::QDMac(const Platform& platform)
    : m_platform(platform)
    , m_manufactureDate(platform.clock.now())
    , m_ageMode(platform.userDefaults.standard().integer(Keys::macAgeMode.name()))
{
}

QDMac::~QDMac() = default;

std::unique_ptr<QDMac> QDMac::init(const Platform& platform)
{
    std::unique_ptr<QDMac> mac(new QDMac(platform));
    mac->loadSettings();
    mac->createBattery();
    mac->m_followsBattery = true;
    return mac;
}

// inherited: the argument is ignored.
std::unique_ptr<QDMac> QDMac::initWithDemoMode(const Platform& platform, bool /*demoMode*/)
{
    std::unique_ptr<QDMac> mac(new QDMac(platform));
    mac->m_isDemonstration = true;
    setDemoValues(*mac);
    // Not opened and without a timer: a refresh would overwrite the demonstration values.
    mac->m_battery = std::make_unique<QDBattery>(platform, demoModel());
    setDemoValues(*mac->m_battery);
    return mac;
}

// inherited: without a caller in this program; the arguments are ignored.
std::unique_ptr<QDMac> QDMac::initWithHost(const Platform& platform, const QString& /*host*/,
                                           const QString& /*user*/, const QString& /*pass*/)
{
    return std::unique_ptr<QDMac>(new QDMac(platform));
}

void QDMac::loadSettings()
{
    // In this order: type, age and day depend on what was read before.
    m_OSXVersion = variantFromOptional(localGetOSXVersion());
    m_model = variantFromOptional(readModelIdentifier(m_platform.registry));
    const auto serial = readSerialNumber(m_platform.registry);
    m_serial = variantFromOptional(serial);
    m_longModel = variantFromOptional(modelText(
        getModelStringFromSerial(), m_platform.userDefaults.standard(), [this](const QString& code) {
            return onlineModelText(code, m_platform.bundle, m_platform.urlSession);
        }));
    // Without a date the moment of the start stays, and m_knowsManufactureDate keeps facts from showing it.
    const auto built = buildDate(serial.value_or(QString()));
    m_knowsManufactureDate = built.has_value();
    if (built)
        m_manufactureDate = *built;
    m_customAge = ageTextOfMode(m_ageMode, ManufactureDate(), m_platform.clock.now());
    m_name = m_platform.host.localizedName();
    m_type = convertToTypeFromModel(m_model.toString());
    m_manufactureDateString = dayText(ManufactureDate());
    Q_EMIT changed();
}

void QDMac::createBattery()
{
    m_battery = std::make_unique<QDBattery>(m_platform, m_model.toString());
    // An object without an entry would show zeros; null shows that there is no battery.
    if (m_battery->open() != kIOReturnSuccess) {
        m_battery.reset();
        return;
    }
    m_battery->invokeTimer();
    // Now: the first values are shown before the timer's first tick.
    m_battery->updateData();
}

void QDMac::dropBattery()
{
    m_battery->updateTimer()->invalidate(); // otherwise it would keep firing
    m_battery.reset();
}

bool QDMac::followBattery()
{
    if (!m_followsBattery)
        return false;
    const std::optional<bool> isThere = m_platform.registry.isMatched(QStringLiteral("AppleSmartBattery"));
    // Nothing is known on a computer whose entries stay what they were at the start.
    if (!isThere || *isThere == (m_battery != nullptr))
        return false;
    if (*isThere)
        createBattery();
    else
        dropBattery();
    Q_EMIT changed();
    return true;
}

void QDMac::toggleAge()
{
    setAgeMode(nextAgeMode(m_ageMode));
    m_platform.userDefaults.standard().setInteger(Keys::macAgeMode.name(), m_ageMode);
    Q_EMIT changed();
}

void QDMac::showAgeInMode(qint64 mode)
{
    setAgeMode(mode);
    Q_EMIT changed();
}

void QDMac::setAgeMode(qint64 mode)
{
    m_ageMode = mode;
    m_customAge = ageTextOfMode(m_ageMode, ManufactureDate(), m_platform.clock.now());
}

QString QDMac::generateMacID() const
{
    // Read anew and not from the properties: those may have been set by key.
    const auto model = readModelIdentifier(m_platform.registry);
    const auto serial = readSerialNumber(m_platform.registry);
    return md5Hex(serial.value_or(QString()) + wrappedOptional(model));
}

QString QDMac::getBuildDateSerialString() const
{
    return dateCharacters(readSerialNumber(m_platform.registry).value_or(QString()));
}

QString QDMac::getModelStringFromSerial() const
{
    return configurationCode(readSerialNumber(m_platform.registry).value_or(QString()));
}

std::optional<QString> QDMac::localGetOSXVersion() const
{
    const auto file = m_platform.systemFiles.propertyList(
        QStringLiteral("/System/Library/CoreServices/SystemVersion.plist"));
    if (!file)
        return std::nullopt;
    const auto version = convertToText(file->value(QStringLiteral("ProductVersion")));
    if (!version)
        return std::nullopt;
    return osxVersionName(*version);
}

QString QDMac::convertToTypeFromModel(const QString& model)
{
    return machineType(model);
}

std::optional<QString> QDMac::hardwareImageName() const
{
    const auto model = readModelIdentifier(m_platform.registry);
    const auto file = m_platform.systemFiles.propertyList(privateFrameworksURL());
    if (!model || !file)
        return std::nullopt;
    // A table of the system's own; any part of it may be missing.
    const QVariant attributes = file->value(*model);
    if (attributes.typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    return convertToText(attributes.toMap().value(QStringLiteral("hardwareImageName")));
}

QString QDMac::privateFrameworksURL()
{
    return QStringLiteral(
        "/System/Library/PrivateFrameworks/ServerInformation.framework/Versions/A/Resources/"
        "English.lproj/SIMachineAttributes.plist");
}

std::optional<QString> QDMac::OSXVersion() const
{
    return convertToText(m_OSXVersion);
}

std::optional<QString> QDMac::Model() const
{
    return convertToText(m_model);
}

std::optional<QString> QDMac::Type() const
{
    return convertToText(m_type);
}

std::optional<QString> QDMac::Name() const
{
    return convertToText(m_name);
}

std::optional<QString> QDMac::LongModel() const
{
    return convertToText(m_longModel);
}

// inherited: the flag is ignored.
std::optional<QVariantMap> QDMac::getDataForSaving(bool /*flag*/) const
{
    if (!m_battery)
        return std::nullopt;
    const QDBattery& battery = *m_battery;
    return snapshotRecord({
        .designCapacity = battery.DesignCapacity(),
        .manufacturer = battery.Manufacturer(),
        .stateOfHealth = battery.StateOfHealth(),
        .legacyAgeInMonths = battery.LegacyAgeInMonths(),
        .cycleCount = battery.CycleCount(),
        .actualDesignCapacity = battery.ActualDesignCapacity(),
        .reportedDesignCapacity = battery.ReportedDesignCapacity(),
        .batteryManufactureDateRaw = battery.manufactureDate(),
        .fullChargeCapacity = battery.FullChargeCapacity(),
        .deviceName = battery.DeviceName(),
        .batteryID = battery.BatteryID(),
        .model = Model(),
        .macManufactureDateRaw = getBuildDateSerialString(),
        .macID = generateMacID(),
        .snapshotDate = m_platform.clock.now(),
        .applicationVersion = shortVersion(m_platform.bundle),
        .raw = battery.getRawData(),
    });
}

QDateTime QDMac::ManufactureDate() const
{
    return m_manufactureDate.toDateTime();
}

std::optional<QString> QDMac::ManufactureDateString() const
{
    return convertToText(m_manufactureDateString);
}

std::optional<QString> QDMac::Serial() const
{
    return convertToText(m_serial);
}

std::optional<QString> QDMac::CustomAge() const
{
    return convertToText(m_customAge);
}

QObject* QDMac::batteryObject() const
{
    return m_battery.get();
}

} // namespace quindle

#include "moc_QDMac.cpp"
