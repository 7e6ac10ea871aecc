#include "inspect/Capture.h"

#include "common/Paths.h"
#include "inspect/InventedSerial.h"
#include "inspect/NeutralPath.h"
#include "mac/QDMac.h"
#include "platform/Bundle.h"
#include "platform/FileUrl.h"
#include "platform/Host.h"
#include "platform/IORegistry.h"
#include "platform/Platform.h"
#include "platform/PowerSources.h"
#include "platform/UserDefaults.h"
#include "plist/PropertyList.h"
#include "settings/SettingsTable.h"
#include "settings/StartupLaunch_pref.h"

namespace quindle {

namespace {

QString batteryEntry()
{
    return QStringLiteral("AppleSmartBattery");
}

QString computerEntry()
{
    return QStringLiteral("IOPlatformExpertDevice");
}

void addRegistryEntry(QVariantMap& entries, IORegistry& registry, RegistryObject object, const QString& name)
{
    if (object == 0)
        return;
    entries.insert(name, registry.properties(object));
    registry.release(object);
}

void addPowerSources(QVariantMap& keys, PowerSources& powerSources)
{
    if (const auto details = powerSources.externalAdapterDetails())
        keys.insert(QStringLiteral("AdapterDetails"), *details);
    const std::optional<int> count = powerSources.sourceCount();
    // Left out: when replayed, that computer fails as this one does.
    if (!count)
        return;
    QVariantList descriptions;
    for (int source = 0; source < *count; ++source)
        descriptions.append(powerSources.description(source).value_or(QVariantMap()));
    keys.insert(QStringLiteral("PowerSources"), descriptions);
}

QVariantMap capturedFiles(const SystemFiles& systemFiles)
{
    // The files that the program reads where they exist; no others matter to a replay.
    const QStringList paths{QStringLiteral("/System/Library/CoreServices/SystemVersion.plist"),
                            QDMac::privateFrameworksURL()};
    QVariantMap files;
    for (const QString& path : paths)
        if (const auto file = systemFiles.propertyList(path))
            files.insert(path, *file);
    return files;
}

/// A captured computer must not send anything to the real services when it is replayed.
QVariantMap withoutServiceHosts(QVariantMap info)
{
    info.remove(QStringLiteral("QDStatisticsHost"));
    info.remove(QStringLiteral("QDProductInformationHost"));
    return info;
}

QVariantMap capturedBundle(const Bundle& bundle)
{
    QVariantMap captured{{QStringLiteral("Path"), bundle.path()}};
    // A bundle without information is captured as it is: its replay ends as the program does there.
    if (const auto info = bundle.infoDictionary())
        captured.insert(QStringLiteral("Info"), withoutServiceHosts(*info));
    return captured;
}

/// Only the helper's own item: what else the user starts is not part of a battery's record.
QVariantList helperLoginItem(const QVariantMap& bundle)
{
    return {fileUrl(helperBundlePath(bundle.value(QStringLiteral("Path")).toString()))};
}

bool isSuiteUnavailable(UserDefaultsDatabases& userDefaults)
{
    return userDefaults.suite(groupDatabaseName()) == nullptr;
}

std::vector<SerialPair> inventedSerials(const QVariantMap& registry, CapturedRegistry kind)
{
    const auto text = [&](const QString& entry, const QString& key) {
        return registry.value(entry).toMap().value(key).toString();
    };
    const QString computer = text(computerEntry(), QStringLiteral("IOPlatformSerialNumber"));
    const QString battery = text(batteryEntry(), QStringLiteral("BatterySerialNumber"));
    // The key that Apple silicon uses.
    const QString another =
        kind == CapturedRegistry::OfAMac ? text(batteryEntry(), QStringLiteral("Serial")) : QString();
    // Each invented serial has to differ from all others, or it would give part of one away.
    const QStringList all{computer, battery, another};
    // The computer's keeps the characters that date it: its age is part of what is reported.
    return {{computer, inventedSerial(computer, true, all)},
            {battery, inventedSerial(battery, false, all)},
            {another, inventedSerial(another, false, all)}};
}

QVariantMap withoutModelCache(QVariantMap databases)
{
    for (QVariant& database : databases) {
        QVariantMap settings = database.toMap();
        // Its keys are the ends of serial numbers.
        settings.remove(Keys::modelStringCache.name());
        database = settings;
    }
    return databases;
}

QVariantMap withoutUserName(QVariantMap bundle)
{
    const QString key = QStringLiteral("Path");
    if (const QString path = bundle.value(key).toString(); !path.isEmpty())
        bundle.insert(key, neutralPath(path, homeFolder()));
    return bundle;
}

} // namespace

QVariantMap capturedRegistry(IORegistry& registry)
{
    QVariantMap entries;
    addRegistryEntry(entries, registry, registry.serviceMatchingName(batteryEntry()), batteryEntry());
    addRegistryEntry(entries, registry, registry.serviceMatchingClass(computerEntry()), computerEntry());
    return entries;
}

QVariantMap capturedKeys(const Platform& platform)
{
    QVariantMap keys{
        {QStringLiteral("Registry"), capturedRegistry(platform.registry)},
        {QStringLiteral("Files"), capturedFiles(platform.systemFiles)},
        {QStringLiteral("HostName"), platform.host.localizedName()},
        {QStringLiteral("Bundle"), capturedBundle(platform.bundle)},
        {QStringLiteral("Defaults"), settingsDatabases(platform.userDefaults)},
        {QStringLiteral("Now"), platform.clock.now()},
    };
    addPowerSources(keys, platform.powerSources);
    if (StartupLaunch_pref::isAppLoginItem(platform.loginItems, platform.bundle.path()))
        keys.insert(QStringLiteral("LoginItems"),
                    helperLoginItem(keys.value(QStringLiteral("Bundle")).toMap()));
    if (isSuiteUnavailable(platform.userDefaults))
        keys.insert(QStringLiteral("SuiteUnavailable"), true);
    return keys;
}

QVariantMap withoutIdentity(const QVariantMap& keys, CapturedRegistry kind)
{
    QVariantMap clean = keys;
    const auto edit = [&clean](const QString& key, QVariantMap (*change)(QVariantMap)) {
        if (clean.contains(key))
            clean.insert(key, change(clean.value(key).toMap()));
    };
    edit(QStringLiteral("Defaults"), withoutModelCache);
    edit(QStringLiteral("Bundle"), withoutUserName);
    if (clean.contains(QStringLiteral("LoginItems")))
        // It holds the bundle's path, which has just changed.
        clean.insert(QStringLiteral("LoginItems"),
                     helperLoginItem(clean.value(QStringLiteral("Bundle")).toMap()));
    clean.insert(QStringLiteral("HostName"), QStringLiteral("Computer"));
    const std::vector<SerialPair> serials =
        inventedSerials(keys.value(QStringLiteral("Registry")).toMap(), kind);
    // Last, in all that is left: a serial number may stand in any text. Only the format's own keys stay,
    // whatever the serials are.
    for (QVariant& value : clean)
        value = withoutSerials(value, serials);
    return clean;
}

QVariantMap settingsDatabases(UserDefaultsDatabases& userDefaults)
{
    const UserDefaults* group = userDefaults.suite(groupDatabaseName());
    return {
        {QStringLiteral("standard"), userDefaults.standard().dictionaryRepresentation()},
        {groupDatabaseName(), group ? group->dictionaryRepresentation() : QVariantMap()},
    };
}

} // namespace quindle
