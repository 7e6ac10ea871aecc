#include "platform/linux/power/LinuxRegistry.h"

#include "platform/linux/power/PowerSampler.h"

namespace quindle {

namespace {

constexpr IOStatus badArgument = static_cast<IOStatus>(0xe00002c2); // as the registry itself numbers it

const QLatin1String batteryName("AppleSmartBattery");
const QString modelKey = QStringLiteral("model");
const QString serialKey = QStringLiteral("IOPlatformSerialNumber");

/// The text in the first of two firmware files that holds any. Device trees end theirs with NUL.
std::optional<QString> firmwareText(TimelyFiles& files, const QString& dmiFolder, const char* dmiName,
                                    const QString& treeFolder, const char* treeName)
{
    for (const auto& [folder, name] : {std::pair(dmiFolder, dmiName), std::pair(treeFolder, treeName)}) {
        if (folder.isEmpty())
            continue;
        const std::optional<QByteArray> content = files.read(folder + u'/' + QLatin1String(name));
        if (!content)
            continue;
        const std::string_view text(content->constData(), static_cast<std::size_t>(content->size()));
        if (std::optional<QString> readable = readableText(text))
            return readable;
    }
    return std::nullopt;
}

} // namespace

LinuxRegistry::LinuxRegistry(PowerSampler& sampler, Folders folders)
    : m_sampler(sampler)
    , m_folders(std::move(folders))
{
}

RegistryObject LinuxRegistry::serviceMatchingName(const QString& name)
{
    if (name != batteryName)
        return 0;
    // Opening is rare and follows a battery that has just come: its files may be newer than the last look.
    m_sampler.lookAgain();
    return m_sampler.sample()->batteryEntry.isEmpty() ? 0 : open(Entry::Battery);
}

std::optional<bool> LinuxRegistry::isMatched(const QString& name)
{
    return name == batteryName && !m_sampler.sample()->batteryEntry.isEmpty();
}

RegistryObject LinuxRegistry::serviceMatchingClass(const QString& className)
{
    return className == QLatin1String("IOPlatformExpertDevice") ? open(Entry::Computer) : 0;
}

QVariant LinuxRegistry::property(RegistryObject object, const QString& key)
{
    const auto entry = m_open.find(object);
    if (entry == m_open.end())
        return {};
    if (entry->second == Entry::Computer)
        return computerProperty(key);
    return batteryEntry().value(key);
}

QVariantMap LinuxRegistry::properties(RegistryObject object)
{
    const auto entry = m_open.find(object);
    if (entry == m_open.end())
        return {};
    if (entry->second == Entry::Computer)
        return computerProperties();
    return batteryEntry();
}

IOStatus LinuxRegistry::release(RegistryObject object)
{
    return m_open.erase(object) == 1 ? kIOReturnSuccess : badArgument;
}

RegistryObject LinuxRegistry::open(Entry entry)
{
    // A handle is never 0, which stands for no entry, nor one that is still open after the count has wrapped
    // around.
    do
        ++m_lastHandle;
    while (m_lastHandle == 0 || m_open.contains(m_lastHandle));
    m_open.emplace(m_lastHandle, entry);
    return m_lastHandle;
}

const QVariantMap& LinuxRegistry::batteryEntry()
{
    const std::shared_ptr<const PowerSample> sample = m_sampler.sample();
    // A battery pulled out under an open entry leaves its last values: 0 of 0 mAh would be shown as "nan%".
    if (!sample->batteryEntry.isEmpty())
        m_lastBatteryEntry = sample->batteryEntry;
    return m_lastBatteryEntry;
}

QVariant LinuxRegistry::computerProperty(const QString& key)
{
    if (key == modelKey) {
        const auto model =
            firmwareText(m_files, m_folders.dmi, "product_name", m_folders.deviceTree, "model");
        // Bytes that end in NUL, as a Mac's registry holds its model.
        return model ? QVariant(model->toUtf8().append('\0')) : QVariant();
    }
    if (key == serialKey) {
        // DMI shows it to root only, as docs/platform.md explains: for most users it is missing.
        const auto serial =
            firmwareText(m_files, m_folders.dmi, "product_serial", m_folders.deviceTree, "serial-number");
        return serial ? QVariant(*serial) : QVariant();
    }
    return {};
}

QVariantMap LinuxRegistry::computerProperties()
{
    QVariantMap values;
    for (const QString& key : {modelKey, serialKey}) {
        const QVariant value = computerProperty(key);
        if (value.isValid())
            values.insert(key, value);
    }
    return values;
}

} // namespace quindle
