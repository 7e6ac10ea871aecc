#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "platform/linux/power/LinuxPowerSources.h"
#include "platform/linux/power/LinuxRegistry.h"
#include "platform/linux/power/PowerSampler.h"
#include "tests/platform/linux/power/Patience.h"
#include "tests/support/TestData.h"

using namespace quindle;

namespace {

const QString dataFolder = testDataFolder() + QStringLiteral("/sysfs/");

/// "none" on a computer without a battery; else the properties by name. Times that are not known (65535) are
/// left out; all four are always there.
struct Machine
{
    const char* folder;
    const char* properties;
};

// Worked out from the attribute files, independently of the program.
const Machine machines[] = {
    {"asahi-macbookpro-m4pro",
     "CurrentCapacity=5186; CycleCount=404; DesignCapacity=6249; DeviceName=bq40z651; "
     "ExternalConnected=true; FullyCharged=true; IsCharging=false; ManufactureDate=22808; "
     "MaxCapacity=5186; Voltage=12911"},
    {"chromebook-asus-c300-full-with-current",
     "Amperage=413; BatterySerialNumber=8157; CurrentCapacity=3558; CycleCount=0; "
     "DesignCapacity=4240; DeviceName=C300-42; ExternalConnected=true; FullyCharged=true; "
     "InstantAmperage=413; IsCharging=false; Manufacturer=AS19IVD; MaxCapacity=3558; Voltage=12867"},
    {"chromebook-lazor-limozeen",
     "Amperage=0; BatterySerialNumber=91b6; CurrentCapacity=3451; CycleCount=2; DesignCapacity=4200; "
     "DeviceName=AP18C4K; ExternalConnected=true; FullyCharged=true; InstantAmperage=0; "
     "IsCharging=false; ManufactureDate=21102; Manufacturer=Murata KT00304012; MaxCapacity=3555; "
     "Temperature=2925.5; Voltage=12293"},
    {"dell-inspiron-3521",
     "Amperage=-1177; BatterySerialNumber=88C8; CurrentCapacity=5420; CycleCount=0; "
     "DesignCapacity=5900; DeviceName=DELL G019Y2CC; ExternalConnected=false; FullyCharged=false; "
     "InstantAmperage=-1177; IsCharging=false; Manufacturer=SDI; MaxCapacity=5900; Voltage=12353"},
    {"dell-inspiron-7737",
     "Amperage=1151; BatterySerialNumber=457; CurrentCapacity=3117; CycleCount=0; "
     "DesignCapacity=3900; DeviceName=DELL 62VNH35; ExternalConnected=true; FullyCharged=false; "
     "InstantAmperage=1151; IsCharging=true; Manufacturer=Samsung SDI; MaxCapacity=3900; "
     "Voltage=16813"},
    {"dell-latitude-3590",
     "Amperage=1; BatterySerialNumber=1231; CurrentCapacity=3428; CycleCount=0; DesignCapacity=3684; "
     "DeviceName=DELL W7NKD78; ExternalConnected=true; FullyCharged=true; InstantAmperage=1; "
     "IsCharging=false; Manufacturer=Samsung SDI; MaxCapacity=3428; Voltage=17447"},
    {"dell-latitude-5501",
     "Amperage=-682; BatterySerialNumber=3918; CurrentCapacity=7486; CycleCount=0; "
     "DesignCapacity=8509; DeviceName=DELL 1WJT092; ExternalConnected=false; FullyCharged=false; "
     "InstantAmperage=-682; IsCharging=false; Manufacturer=LGC-LGC8.509; MaxCapacity=7741; "
     "Voltage=12911"},
    {"dell-latitude-e4310",
     "Amperage=1692; BatterySerialNumber=814; CurrentCapacity=45; CycleCount=0; DesignCapacity=2800; "
     "DeviceName=DELL Y266P01; ExternalConnected=true; FullyCharged=false; InstantAmperage=1692; "
     "IsCharging=true; Manufacturer=SMP; MaxCapacity=2089; Voltage=11019"},
    {"dell-studio-xps-1340",
     "Amperage=-1813; BatterySerialNumber=26331; CurrentCapacity=4198; CycleCount=0; "
     "DesignCapacity=5661; DeviceName=Dell; ExternalConnected=false; FullyCharged=false; "
     "InstantAmperage=-1813; IsCharging=false; Manufacturer=PANASONIC; MaxCapacity=4353; "
     "Voltage=11902"},
    {"dell-vostro-3460",
     "Amperage=1; BatterySerialNumber=33405; CurrentCapacity=4324; CycleCount=0; DesignCapacity=4324; "
     "DeviceName=Dell; ExternalConnected=false; FullyCharged=true; InstantAmperage=1; "
     "IsCharging=false; Manufacturer=SDI; MaxCapacity=4324; Voltage=12497"},
    {"dell-vostro-v131",
     "Amperage=592; BatterySerialNumber=72281; CurrentCapacity=3699; CycleCount=0; "
     "DesignCapacity=5900; DeviceName=DELL HK3RG13; ExternalConnected=true; FullyCharged=false; "
     "InstantAmperage=592; IsCharging=true; MaxCapacity=4774; Voltage=13018"},
    {"dell-xps15-full-without-power-now",
     "BatterySerialNumber=70914; CurrentCapacity=7846; CycleCount=0; DesignCapacity=8004; "
     "DeviceName=PABAS0241231; ExternalConnected=true; FullyCharged=true; IsCharging=false; "
     "Manufacturer=Simplo; MaxCapacity=7846; Voltage=12782"},
    {"desktop-congatec-apex", "none"},
    {"desktop-keyboard-k375s-level-only", "none"},
    {"desktop-logitech-m510-level-only", "none"},
    {"desktop-logitech-mx-anywhere3", "none"},
    {"framework-13-charging-99",
     "Amperage=159; BatterySerialNumber=05C8; CurrentCapacity=3955; CycleCount=23; "
     "DesignCapacity=3915; DeviceName=FRANGWA; ExternalConnected=true; FullyCharged=false; "
     "InstantAmperage=159; IsCharging=true; Manufacturer=NVT; MaxCapacity=3992; Voltage=17814"},
    {"framework-13-discharging-93",
     "Amperage=-402; BatterySerialNumber=07D2; CurrentCapacity=3670; CycleCount=38; "
     "DesignCapacity=3915; DeviceName=FRANGWA; ExternalConnected=false; FullyCharged=false; "
     "InstantAmperage=-402; IsCharging=false; Manufacturer=NVT; MaxCapacity=3956; Voltage=17296"},
    {"hp-envy-15", "Amperage=0; BatterySerialNumber=83080 4704/99/13; CurrentCapacity=5145; CycleCount=0; "
                   "DesignCapacity=5145; DeviceName=Primary; ExternalConnected=true; FullyCharged=true; "
                   "InstantAmperage=0; IsCharging=false; Manufacturer=Hewlett-Packard; MaxCapacity=5145; "
                   "Voltage=10975"},
    {"hp-pavilion-14",
     "Amperage=0; CurrentCapacity=2720; CycleCount=0; DesignCapacity=2720; DeviceName=Primary; "
     "ExternalConnected=true; FullyCharged=true; InstantAmperage=0; IsCharging=false; "
     "Manufacturer=Hewlett-Packard; MaxCapacity=2720; Voltage=17021"},
    {"laptop-discharging-without-current",
     "CurrentCapacity=2653; CycleCount=0; DesignCapacity=5200; ExternalConnected=false; "
     "FullyCharged=false; IsCharging=false; MaxCapacity=4958; Voltage=14413"},
    {"legion-with-wireless-headset",
     "Amperage=0; CurrentCapacity=4155; CycleCount=76; DesignCapacity=4116; DeviceName=L21L4PD8; "
     "ExternalConnected=true; FullyCharged=true; InstantAmperage=0; IsCharging=false; "
     "Manufacturer=LGES; MaxCapacity=4155; Voltage=17249"},
    {"lenovo-handheld-offline-usbc",
     "Amperage=-1926; BatterySerialNumber=5167; CurrentCapacity=2765; CycleCount=53; "
     "DesignCapacity=4744; DeviceName=L24M3PK8; ExternalConnected=false; FullyCharged=false; "
     "InstantAmperage=-1926; IsCharging=false; Manufacturer=SMP; MaxCapacity=4744; Voltage=11705"},
    {"macbook-retina13-garbled-strings",
     "Amperage=-1624; CurrentCapacity=2495; CycleCount=0; DesignCapacity=8933; "
     "DeviceName=bq20z4517H4TQWLC2123456789ABCDE; ExternalConnected=false; FullyCharged=false; "
     "InstantAmperage=-1624; IsCharging=false; Manufacturer=SMPNz4517H4TQWLC2123456789ABCDE; "
     "MaxCapacity=7459; Voltage=7323"},
    {"macbookair-a1405-third-party-pack",
     "Amperage=3938; CurrentCapacity=5446; CycleCount=5; DesignCapacity=8000; DeviceName=A1405; "
     "ExternalConnected=true; FullyCharged=false; InstantAmperage=3938; IsCharging=true; "
     "Manufacturer=XINGLT; MaxCapacity=8179"},
    {"macbookpro14-1-sbs-worn",
     "Amperage=0; CurrentCapacity=2550; CycleCount=183; DesignCapacity=4790; DeviceName=bq20z451; "
     "ExternalConnected=true; FullyCharged=true; InstantAmperage=0; IsCharging=false; "
     "Manufacturer=SMP; MaxCapacity=2550"},
    {"msi-ms171f-on-battery",
     "Amperage=-2529; CurrentCapacity=2370; CycleCount=0; DesignCapacity=4800; DeviceName=MS-171F; "
     "ExternalConnected=false; FullyCharged=false; InstantAmperage=-2529; IsCharging=false; "
     "Manufacturer=MSI Corp.; MaxCapacity=3344; Voltage=11361"},
    {"pinephone-with-keyboard",
     "CurrentCapacity=43; ExternalConnected=false; FullyCharged=false; IsCharging=false; "
     "MaxCapacity=100"},
    {"samsung-547-cycles",
     "Amperage=-692; BatterySerialNumber=123456789; CurrentCapacity=1260; CycleCount=547; "
     "DesignCapacity=3780; DeviceName=SR Real Battery; ExternalConnected=false; FullyCharged=false; "
     "InstantAmperage=-692; IsCharging=false; Manufacturer=SAMSUNG Electronics; MaxCapacity=2800; "
     "Voltage=10980"},
    {"samsung-n310",
     "Amperage=3196; CurrentCapacity=869; CycleCount=0; DesignCapacity=8850; ExternalConnected=true; "
     "FullyCharged=false; InstantAmperage=3196; IsCharging=true; Manufacturer=SAMSUNG Electronics; "
     "MaxCapacity=7900; Voltage=7770"},
    {"samsung-two-cell-anonymous",
     "Amperage=-1825; CurrentCapacity=1638; CycleCount=0; DesignCapacity=6300; "
     "ExternalConnected=false; FullyCharged=false; InstantAmperage=-1825; IsCharging=false; "
     "Manufacturer=SAMSUNG Electronics; MaxCapacity=6300; Voltage=7435"},
    {"sbs-gehc-32-properties",
     "Amperage=-24; AvgTimeToEmpty=7310; BatterySerialNumber=0000; CurrentCapacity=2924; "
     "CycleCount=12; DesignCapacity=3800; DeviceName=GEHC; ExternalConnected=false; "
     "FullyCharged=false; InstantAmperage=-26; InstantTimeToEmpty=7310; IsCharging=false; "
     "ManufactureDate=19171; Manufacturer=UR18650A; MaxCapacity=3898; Temperature=2929.5; "
     "TimeRemaining=7310; Voltage=11441"},
    {"steam-deck-above-full",
     "CurrentCapacity=4538; DesignCapacity=4160; ExternalConnected=true; FullyCharged=false; "
     "IsCharging=false; MaxCapacity=4538"},
    {"thinkpad-45n1153-worn",
     "Amperage=-1337; BatterySerialNumber=517; CurrentCapacity=4181; CycleCount=0; "
     "DesignCapacity=8960; DeviceName=45N1153; ExternalConnected=false; FullyCharged=false; "
     "InstantAmperage=-1337; IsCharging=false; Manufacturer=LGC; MaxCapacity=6080; Voltage=11558"},
    {"thinkpad-edge-e445",
     "Amperage=0; BatterySerialNumber=2625; CurrentCapacity=4507; CycleCount=0; DesignCapacity=4400; "
     "DeviceName=45N1043; ExternalConnected=true; FullyCharged=true; InstantAmperage=0; "
     "IsCharging=false; Manufacturer=SANYO; MaxCapacity=4507; Voltage=12506"},
    {"thinkpad-procfs-lnv45n1",
     "Amperage=-395; BatterySerialNumber=80546; CurrentCapacity=4579; CycleCount=0; "
     "DesignCapacity=4400; DeviceName=LNV-45N1; ExternalConnected=false; FullyCharged=false; "
     "InstantAmperage=-395; IsCharging=false; Manufacturer=LGC; MaxCapacity=4635; Voltage=12229"},
    {"thinkpad-t420-battery-removed", "none"},
    {"thinkpad-t430s",
     "Amperage=0; BatterySerialNumber=7553; CurrentCapacity=3869; CycleCount=0; DesignCapacity=3964; "
     "DeviceName=45N1037; ExternalConnected=true; FullyCharged=false; InstantAmperage=0; "
     "IsCharging=false; Manufacturer=SANYO; MaxCapacity=3873; Voltage=12515"},
    {"thinkpad-t480-two-batteries-rear-empty",
     "Amperage=-623; CurrentCapacity=2061; DeviceName=01AV421; ExternalConnected=false; "
     "FullyCharged=false; InstantAmperage=-623; IsCharging=false; Manufacturer=LGC; MaxCapacity=8421; "
     "Voltage=11400"},
    {"thinkpad-two-batteries-bat0-charging",
     "Amperage=2399; BatterySerialNumber=8450; CurrentCapacity=1484; CycleCount=5; "
     "DesignCapacity=2090; DeviceName=00HW022; ExternalConnected=true; FullyCharged=false; "
     "InstantAmperage=2399; IsCharging=true; Manufacturer=SANYO; MaxCapacity=2137; Voltage=12514"},
    {"thinkpad-two-batteries-both-held",
     "Amperage=0; BatterySerialNumber=7064; CurrentCapacity=1239; CycleCount=236; "
     "DesignCapacity=6774; DeviceName=01AV493; ExternalConnected=true; FullyCharged=false; "
     "InstantAmperage=0; IsCharging=false; Manufacturer=LGC; MaxCapacity=5537; Voltage=16575"},
    {"thinkpad-worn-to-a-third",
     "Amperage=2977; BatterySerialNumber=38720; CurrentCapacity=501; CycleCount=0; "
     "DesignCapacity=5600; DeviceName=42T4865; ExternalConnected=true; FullyCharged=false; "
     "InstantAmperage=2977; IsCharging=true; Manufacturer=LGC; MaxCapacity=1802; Voltage=12796"},
    {"thinkpad-x1-extreme-thresholds",
     "Amperage=0; CurrentCapacity=5740; CycleCount=326; DesignCapacity=7053; DeviceName=5B10V98091; "
     "ExternalConnected=true; FullyCharged=false; InstantAmperage=0; IsCharging=false; "
     "Manufacturer=Celxpert; MaxCapacity=6074; Voltage=11400"},
    {"thinkpad-x1-unknown-32-percent",
     "Amperage=0; BatterySerialNumber=461; CurrentCapacity=561; CycleCount=0; DesignCapacity=2630; "
     "DeviceName=42T4977; ExternalConnected=true; FullyCharged=false; InstantAmperage=0; "
     "IsCharging=false; Manufacturer=SMP; MaxCapacity=1723; Voltage=14526"},
    {"toshiba-pa3534u-no-capacity",
     "Amperage=0; BatterySerialNumber=7204K; CurrentCapacity=1440; DesignCapacity=4000; "
     "DeviceName=PA3534U; ExternalConnected=true; FullyCharged=false; InstantAmperage=0; "
     "IsCharging=true; Manufacturer=TOSHIBA; MaxCapacity=4000; Voltage=11100"},
    {"vmware-vm", "none"},
};

QString asText(const QVariantMap& properties)
{
    QStringList texts;
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        if (property.value() != QVariant::fromValue<qint64>(65535))
            texts += property.key() + u'=' + property.value().toString();
    }
    return texts.join(QStringLiteral("; "));
}

struct OnMachine
{
    explicit OnMachine(const char* folder)
        : OnMachine(dataFolder + QLatin1String(folder))
    {
    }

    explicit OnMachine(const QString& folder)
        : sampler((folder + QStringLiteral("/class/power_supply")).toStdString(), readDescriptor,
                  timeSinceBoot, endlessPatience)
        , registry(sampler, {folder + QStringLiteral("/class/dmi/id"), {}})
    {
    }

    PowerSampler sampler;
    LinuxRegistry registry;
    LinuxPowerSources powerSources{sampler};
};

class RecordedBatteries : public testing::TestWithParam<Machine>
{
};

TEST_P(RecordedBatteries, RegistryEntry)
{
    OnMachine machine(GetParam().folder);
    const RegistryObject entry = machine.registry.serviceMatchingName(QStringLiteral("AppleSmartBattery"));
    const QVariantMap properties = machine.registry.properties(entry);
    EXPECT_EQ(entry == 0 ? "none" : asText(properties).toStdString(), GetParam().properties);
    for (auto property = properties.begin(); property != properties.end(); ++property)
        EXPECT_EQ(machine.registry.property(entry, property.key()), property.value())
            << property.key().toStdString();
}

/// A copy of the machine's folder with only those files of each supply that `isKept` accepts.
template <typename Predicate>
void copySupplies(const QString& from, const QString& to, Predicate isKept)
{
    const QString supplies = QStringLiteral("/class/power_supply/");
    for (const QString& supply : QDir(from + supplies).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        ASSERT_TRUE(QDir().mkpath(to + supplies + supply));
        const QDir folder(from + supplies + supply);
        for (const QString& file : folder.entryList(QDir::Files))
            if (isKept(file)) {
                ASSERT_TRUE(QFile::copy(folder.filePath(file), to + supplies + supply + u'/' + file));
            }
    }
}

std::string entryOf(const QString& folder)
{
    OnMachine machine(folder);
    return asText(machine.sampler.sample()->batteryEntry).toStdString();
}

/// A supply says the same whether its uevent or its single files are read, except on a computer whose files
/// are of another moment than its uevents.
TEST_P(RecordedBatteries, UeventsAndSingleFilesSayTheSame)
{
    const QTemporaryDir copies;
    const QString recorded = dataFolder + QLatin1String(GetParam().folder);
    const QString files = copies.filePath(QStringLiteral("files"));
    const QString uevents = copies.filePath(QStringLiteral("uevents"));
    copySupplies(recorded, files, [](const QString& name) { return name != QStringLiteral("uevent"); });
    copySupplies(recorded, uevents, [](const QString& name) {
        return name == QStringLiteral("uevent") || name == QStringLiteral("type") ||
               name == QStringLiteral("scope");
    });
    EXPECT_EQ(entryOf(files), entryOf(recorded));
    const bool isOfTwoMoments = GetParam().folder == std::string("thinkpad-procfs-lnv45n1");
    EXPECT_EQ(entryOf(uevents) != entryOf(recorded), isOfTwoMoments);
}

INSTANTIATE_TEST_SUITE_P(Sysfs, RecordedBatteries, testing::ValuesIn(machines), [](const auto& machine) {
    return QString::fromLatin1(machine.param.folder).replace(u'-', u'_').toStdString();
});

TEST(RecordedBatteriesTable, HasEveryMachine)
{
    QStringList tested;
    for (const Machine& machine : machines)
        tested += QString::fromLatin1(machine.folder);
    EXPECT_EQ(tested, QDir(dataFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name));
}

TEST(RecordedPowerSources, CountAndHealth)
{
    struct Row
    {
        const char* folder;
        int sources;
        const char* health;
    };
    const Row rows[] = {
        {"vmware-vm", 0, ""},
        {"desktop-logitech-mx-anywhere3", 0, ""},
        {"legion-with-wireless-headset", 1, "Good"},
        {"thinkpad-two-batteries-both-held", 2, "Fair"},
        {"thinkpad-worn-to-a-third", 1, "Poor"},
        {"sbs-gehc-32-properties", 1, "Good"},
        {"pinephone-with-keyboard", 1, "Good"},
        {"thinkpad-t480-two-batteries-rear-empty", 2, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.folder);
        OnMachine machine(row.folder);
        EXPECT_EQ(machine.powerSources.sourceCount(), row.sources);
        EXPECT_EQ(machine.powerSources.externalAdapterDetails(), std::nullopt);
        const QVariantMap first = machine.powerSources.description(0).value_or(QVariantMap());
        EXPECT_EQ(first.value(QStringLiteral("BatteryHealth")).toString().toStdString(), row.health);
        EXPECT_EQ(machine.powerSources.description(row.sources), std::nullopt);
        EXPECT_EQ(machine.powerSources.description(-1), std::nullopt);
    }
}

TEST(RecordedPowerSources, ChargeLimit)
{
    EXPECT_EQ(OnMachine("thinkpad-x1-extreme-thresholds").powerSources.chargeLimit(), 95);
    EXPECT_EQ(OnMachine("framework-13-charging-99").powerSources.chargeLimit(), std::nullopt);
    EXPECT_EQ(OnMachine("vmware-vm").powerSources.chargeLimit(), std::nullopt);
}

TEST(RecordedModel, IsTheDevicesName)
{
    const std::pair<const char*, QByteArray> rows[] = {
        {"macbookpro14-1-sbs-worn", QByteArray("MacBookPro14,1\0", 15)},
        {"hp-envy-15", QByteArray("HP ENVY 15 Notebook PC\0", 23)},
        {"asahi-macbookpro-m4pro", QByteArray()},
    };
    for (const auto& [folder, model] : rows) {
        OnMachine machine(folder);
        const RegistryObject entry =
            machine.registry.serviceMatchingClass(QStringLiteral("IOPlatformExpertDevice"));
        EXPECT_NE(entry, 0U);
        EXPECT_EQ(machine.registry.property(entry, QStringLiteral("model")).toByteArray(), model) << folder;
        EXPECT_FALSE(machine.registry.property(entry, QStringLiteral("IOPlatformSerialNumber")).isValid());
    }
}

} // namespace
