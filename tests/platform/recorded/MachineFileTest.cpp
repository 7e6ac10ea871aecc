#include "platform/recorded/MachineFile.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

#include "plist/PropertyList.h"
#include "tests/platform/recorded/Keys.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QString path()
{
    return QStringLiteral("/folder/machine.plist");
}

MachineResult check(const QVariantMap& keys)
{
    return machineFromPropertyList(keys, path());
}

std::string refusalOf(const QVariantMap& keys)
{
    const MachineResult result = check(keys);
    const auto* refusal = std::get_if<MachineRefusal>(&result);
    return refusal ? refusal->line.toStdString() : "accepted";
}

QVariantMap inStep(const QVariantMap& keys)
{
    return one("Steps", QVariantList{QVariantMap(), keys});
}

QVariant text()
{
    return QStringLiteral("x");
}

struct TypedKey
{
    const char* key;
    QMetaType::Type type;
    bool inFile;
    bool inStep;
};

constexpr TypedKey typedKeys[] = {
    {"Registry", QMetaType::QVariantMap, true, true},
    {"PowerSources", QMetaType::QVariantList, true, true},
    {"AdapterDetails", QMetaType::QVariantMap, true, true},
    {"Files", QMetaType::QVariantMap, true, true},
    {"HostName", QMetaType::QString, true, true},
    {"Bundle", QMetaType::QVariantMap, true, false},
    {"Defaults", QMetaType::QVariantMap, true, true},
    {"SuiteUnavailable", QMetaType::Bool, true, false},
    {"ApplicationSupport", QMetaType::QVariantList, true, true},
    {"LoginItems", QMetaType::QVariantList, true, true},
    {"Replies", QMetaType::QVariantMap, true, true},
    {"Now", QMetaType::QDateTime, true, true},
    {"Steps", QMetaType::QVariantList, true, false},
    {"Remove", QMetaType::QVariantList, false, true},
    {"Actions", QMetaType::QVariantList, false, true},
};

/// An empty or plain value of each type; empty collections suit every key of their type.
const QVariant everyType[] = {
    QVariant(QStringLiteral("x")),
    QVariant::fromValue<qint64>(1),
    QVariant(1.5),
    QVariant(true),
    QVariant(QVariantList()),
    QVariant(QVariantMap()),
    QVariant(QByteArray("x")),
    QVariant(QDateTime(QDate(2020, 1, 1), QTime(0, 0))),
    QVariant(),
};

TEST(MachineFile, EveryKeyWantsItsOwnType)
{
    for (const TypedKey& key : typedKeys)
        for (const QVariant& value : everyType) {
            const std::string inFile = refusalOf(one(key.key, value));
            const std::string later = refusalOf(inStep(one(key.key, value)));
            const bool isRight = value.typeId() == key.type;
            const std::string start = path().toStdString() + ": ";
            EXPECT_EQ(inFile == "accepted", isRight && key.inFile) << key.key << ' ' << value.typeName();
            EXPECT_EQ(later == "accepted", isRight && key.inStep) << key.key << ' ' << value.typeName();
            if (inFile != "accepted") {
                EXPECT_EQ(inFile.find(start + key.key + ": "), 0U) << inFile;
            }
            if (later != "accepted") {
                EXPECT_EQ(later.find(start + "Steps[1]." + key.key + ": "), 0U) << later;
            }
        }
}

TEST(MachineFile, TimesBetweenStepsAreNumbers)
{
    for (const QVariant& value : everyType) {
        const bool isNumber = value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Double;
        EXPECT_EQ(refusalOf(inStep(one("After", value))) == "accepted", isNumber) << value.typeName();
    }
    EXPECT_NE(refusalOf(one("After", 1.5)), "accepted");
}

struct Refused
{
    QVariantMap keys;
    const char* key;
};

TEST(MachineFile, NamesTheKeyInside)
{
    const QVariant number = QVariant::fromValue<qint64>(1);
    const Refused rows[] = {
        {one("Registry", one("AppleSmartBattery", number)), "Registry.AppleSmartBattery"},
        {one("PowerSources", QVariantList{QVariantMap(), number}), "PowerSources[1]"},
        {one("Files", one("/a", text())), "Files./a"},
        {one("Bundle", one("Path", number)), "Bundle.Path"},
        {one("Bundle", one("Info", text())), "Bundle.Info"},
        {one("Bundle", one("Name", text())), "Bundle.Name"},
        {one("Defaults", one("standard", text())), "Defaults.standard"},
        {one("Defaults", one("elsewhere", QVariantMap())), "Defaults.elsewhere"},
        {one("ApplicationSupport", QVariantList{number}), "ApplicationSupport[0]"},
        {one("LoginItems", QVariantList{text(), number}), "LoginItems[1]"},
        {one("Replies", one("F5YW", number)), "Replies.F5YW"},
        {one("Steps", QVariantList{QVariantMap(), number}), "Steps[1]"},
        {one("Unknown", number), "Unknown"},
        {inStep(one("Actions", QVariantList{QStringLiteral("wake"), QStringLiteral("Wake")})),
         "Steps[1].Actions[1]"},
        {inStep(one("Remove", QVariantList{number})), "Steps[1].Remove[0]"},
        {inStep(one("Registry", one("A", number))), "Steps[1].Registry.A"},
        {inStep(one("Unknown", number)), "Steps[1].Unknown"},
    };
    for (const Refused& row : rows)
        EXPECT_EQ(refusalOf(row.keys).find("/folder/machine.plist: " + std::string(row.key) + ": "), 0U)
            << refusalOf(row.keys);
}

TEST(MachineFile, NothingIsRefusedInsideWhatTheComputerAnswers)
{
    const QVariantMap anything{
        {QStringLiteral("x"), QVariantList{1, QVariantMap{{QStringLiteral("y"), true}}}}};
    EXPECT_EQ(refusalOf({{QStringLiteral("Registry"), one("Entry", anything)},
                         {QStringLiteral("PowerSources"), QVariantList{anything}},
                         {QStringLiteral("AdapterDetails"), anything},
                         {QStringLiteral("Files"), one("/a", anything)},
                         {QStringLiteral("Defaults"), one("standard", anything)},
                         {QStringLiteral("Bundle"), one("Info", anything)}}),
              "accepted");
}

TEST(MachineFile, StepsInOrder)
{
    const QVariantMap first{
        {QStringLiteral("Remove"), QVariantList{QStringLiteral("Now")}},
        {QStringLiteral("Actions"), QVariantList{QStringLiteral("mac.toggleAge"), QStringLiteral("wake")}},
        {QStringLiteral("HostName"), QStringLiteral("later")},
        {QStringLiteral("After"), 0.5}};
    const auto machine = std::get<Machine>(check(one("Steps", QVariantList{first, QVariantMap()})));
    ASSERT_EQ(machine.steps.size(), 2U);
    EXPECT_FALSE(machine.keys.contains(QStringLiteral("Steps")));
    EXPECT_EQ(machine.steps[0].remove, QStringList(QStringLiteral("Now")));
    EXPECT_EQ(machine.steps[0].actions, (std::vector{MachineAction::MacToggleAge, MachineAction::Wake}));
    EXPECT_EQ(machine.steps[0].keys, one("HostName", QStringLiteral("later")));
    EXPECT_EQ(machine.steps[0].after, 0.5);
    EXPECT_EQ(machine.steps[1].after, 10);
}

TEST(MachineFile, RelativeFoldersCountFromTheFile)
{
    const QVariantMap folders =
        one("ApplicationSupport",
            QVariantList{QStringLiteral("a/b"), QStringLiteral("../c"), QStringLiteral("/d")});
    const QVariantList absolute{QStringLiteral("/folder/a/b"), QStringLiteral("/c"), QStringLiteral("/d")};
    EXPECT_EQ(std::get<Machine>(check(folders)).keys, one("ApplicationSupport", absolute));
    EXPECT_EQ(std::get<Machine>(check(inStep(folders))).steps[1].keys, one("ApplicationSupport", absolute));
}

TEST(MachineFile, RefusalIsOneLine)
{
    EXPECT_EQ(refusalOf(one("a\nb", text())), "/folder/machine.plist: a b: unknown key");
}

TEST(MachineFile, WholeFiles)
{
    const QTemporaryDir folder;
    const auto read = [&](const QByteArray& bytes) {
        const QString name = folder.filePath(QStringLiteral("machine"));
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        return readMachineFile(name);
    };
    const auto isRefused = [](const MachineResult& result) {
        return std::holds_alternative<MachineRefusal>(result);
    };
    EXPECT_TRUE(isRefused(readMachineFile(folder.filePath(QStringLiteral("none")))));
    EXPECT_TRUE(isRefused(read("")));
    EXPECT_TRUE(isRefused(read("hello")));
    EXPECT_TRUE(isRefused(read(xmlPropertyList(QVariantList()))));
    EXPECT_FALSE(isRefused(read(xmlPropertyList(QVariantMap()))));
}

TEST(MachineFile, NoNameIsThisComputer)
{
    const NamedMachine thisComputer = machineNamed({});
    EXPECT_FALSE(thisComputer.machine.has_value());
    EXPECT_EQ(thisComputer.refusal, QString());
    const NamedMachine refused = machineNamed(QStringLiteral("/nonexistent/machine"));
    EXPECT_FALSE(refused.machine.has_value());
    EXPECT_TRUE(refused.refusal.startsWith(QStringLiteral("/nonexistent/machine: ")));
}

} // namespace
