#include "platform/recorded/MachineFile.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include <QDir>
#include <QFileInfo>

#include "common/FileContents.h"
#include "common/Paths.h"
#include "platform/UserDefaults.h"
#include "plist/PropertyList.h"

namespace quindle {

namespace {

/// What is wrong with a value, and at which key inside it; nothing when it is right.
struct Fault
{
    QString inside; ///< appended to the key: "" or e.g. "[2]" or ".AppleSmartBattery"
    QString reason;
};
using Verdict = std::optional<Fault>;
using Check = Verdict (*)(const QVariant&);

bool isText(const QVariant& value)
{
    return value.typeId() == QMetaType::QString;
}

bool isDictionary(const QVariant& value)
{
    return value.typeId() == QMetaType::QVariantMap;
}

bool isArray(const QVariant& value)
{
    return value.typeId() == QMetaType::QVariantList;
}

Verdict wants(bool right, const char* type)
{
    if (right)
        return std::nullopt;
    return Fault{{}, QStringLiteral("must be ") + QLatin1String(type)};
}

Verdict checkText(const QVariant& value)
{
    return wants(isText(value), "a text");
}

Verdict checkDictionary(const QVariant& value)
{
    return wants(isDictionary(value), "a dictionary");
}

Verdict checkBoolean(const QVariant& value)
{
    return wants(value.typeId() == QMetaType::Bool, "a boolean");
}

Verdict checkDate(const QVariant& value)
{
    return wants(value.typeId() == QMetaType::QDateTime, "a date");
}

Verdict checkNumber(const QVariant& value)
{
    // A boolean converts to a number, but is not one.
    return wants(value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Double, "a number");
}

Verdict checkItems(const QVariant& value, Check item)
{
    if (!isArray(value))
        return wants(false, "an array");
    const QVariantList list = value.toList();
    for (qsizetype index = 0; index < list.size(); ++index)
        if (const Verdict fault = item(list[index]))
            return Fault{QStringLiteral("[%1]").arg(index) + fault->inside, fault->reason};
    return std::nullopt;
}

Verdict checkEntries(const QVariant& value, Check entry)
{
    if (!isDictionary(value))
        return checkDictionary(value);
    const QVariantMap map = value.toMap();
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        if (const Verdict fault = entry(it.value()))
            return Fault{u'.' + it.key() + fault->inside, fault->reason};
    return std::nullopt;
}

Verdict checkTexts(const QVariant& value)
{
    return checkItems(value, checkText);
}

Verdict checkDictionaries(const QVariant& value)
{
    return checkItems(value, checkDictionary);
}

Verdict checkDictionariesByName(const QVariant& value)
{
    return checkEntries(value, checkDictionary);
}

Verdict checkTextsByName(const QVariant& value)
{
    return checkEntries(value, checkText);
}

Verdict checkBundle(const QVariant& value)
{
    if (!isDictionary(value))
        return checkDictionary(value);
    const QVariantMap bundle = value.toMap();
    for (auto it = bundle.cbegin(); it != bundle.cend(); ++it) {
        const bool isPath = it.key() == u"Path";
        if (!isPath && it.key() != u"Info")
            return Fault{u'.' + it.key(), QStringLiteral("unknown key")};
        if (const Verdict fault = isPath ? checkText(it.value()) : checkDictionary(it.value()))
            return Fault{u'.' + it.key(), fault->reason};
    }
    return std::nullopt;
}

Verdict checkDefaults(const QVariant& value)
{
    if (Verdict fault = checkDictionariesByName(value))
        return fault;
    const QVariantMap databases = value.toMap();
    for (auto it = databases.cbegin(); it != databases.cend(); ++it)
        // The program opens no others, so another name would be a mistake that nobody notices.
        if (it.key() != u"standard" && it.key() != groupDatabaseName())
            return Fault{u'.' + it.key(), QStringLiteral("no such database")};
    return std::nullopt;
}

struct NamedAction
{
    const char* name;
    MachineAction action;
};

constexpr NamedAction namedActions[] = {
    {"battery.toggleAge", MachineAction::BatteryToggleAge},
    {"battery.toggleTemperatureMode", MachineAction::BatteryToggleTemperatureMode},
    {"battery.loadSettings", MachineAction::BatteryLoadSettings},
    {"battery.close", MachineAction::BatteryClose},
    {"battery.open", MachineAction::BatteryOpen},
    {"mac.toggleAge", MachineAction::MacToggleAge},
    {"sleep", MachineAction::Sleep},
    {"wake", MachineAction::Wake},
    {"SettingsChangedNotification", MachineAction::SettingsChanged},
    {"WillUpdateImmediately", MachineAction::WillUpdateImmediately},
    {"openApplication", MachineAction::OpenApplication},
};

const NamedAction* findAction(const QString& name)
{
    const auto* found =
        std::find_if(std::begin(namedActions), std::end(namedActions),
                     [&](const NamedAction& entry) { return name == QLatin1String(entry.name); });
    return found == std::end(namedActions) ? nullptr : found;
}

Verdict checkAction(const QVariant& value)
{
    if (!isText(value))
        return checkText(value);
    if (findAction(value.toString()))
        return std::nullopt;
    return Fault{{}, QStringLiteral("unknown action \"%1\"").arg(value.toString())};
}

Verdict checkActions(const QVariant& value)
{
    return checkItems(value, checkAction);
}

enum class Place { Anywhere, File, Step };

struct KeyRule
{
    const char* key;
    Check check;
    Place place;
};

/// Only the form is checked. Entries hold whatever that computer answered, and the program must cope with it
/// as it would there.
constexpr KeyRule keyRules[] = {
    {"Registry", checkDictionariesByName, Place::Anywhere},
    {"PowerSources", checkDictionaries, Place::Anywhere},
    {"AdapterDetails", checkDictionary, Place::Anywhere},
    {"Files", checkDictionariesByName, Place::Anywhere},
    {"HostName", checkText, Place::Anywhere},
    {"Bundle", checkBundle, Place::File},
    {"Defaults", checkDefaults, Place::Anywhere},
    {"SuiteUnavailable", checkBoolean, Place::File},
    {"ApplicationSupport", checkTexts, Place::Anywhere},
    {"LoginItems", checkTexts, Place::Anywhere},
    {"Replies", checkTextsByName, Place::Anywhere},
    {"Now", checkDate, Place::Anywhere},
    {"Steps", checkDictionaries, Place::File},
    {"Remove", checkTexts, Place::Step},
    {"Actions", checkActions, Place::Step},
    {"After", checkNumber, Place::Step},
};

Verdict checkKey(const QString& key, const QVariant& value, Place place)
{
    for (const KeyRule& rule : keyRules)
        if (key == QLatin1String(rule.key) && (rule.place == Place::Anywhere || rule.place == place))
            return rule.check(value);
    return Fault{{}, QStringLiteral("unknown key")};
}

/// The first fault of a file's or step's keys; `inside` is then the whole key.
Verdict checkKeys(const QVariantMap& keys, Place place)
{
    for (auto it = keys.cbegin(); it != keys.cend(); ++it)
        if (const Verdict fault = checkKey(it.key(), it.value(), place))
            return Fault{it.key() + fault->inside, fault->reason};
    return std::nullopt;
}

Verdict checkMachine(const QVariantMap& keys)
{
    if (Verdict fault = checkKeys(keys, Place::File))
        return fault;
    const QVariantList steps = keys.value(QStringLiteral("Steps")).toList();
    for (qsizetype index = 0; index < steps.size(); ++index)
        if (const Verdict fault = checkKeys(steps[index].toMap(), Place::Step))
            return Fault{QStringLiteral("Steps[%1].").arg(index) + fault->inside, fault->reason};
    return std::nullopt;
}

MachineRefusal refusal(const QString& path, const QString& what)
{
    QString line = path + QStringLiteral(": ") + what;
    // Names of keys may hold any text; the refusal stays one line.
    std::replace_if(
        line.begin(), line.end(), [](QChar c) { return c < u' '; }, u' ');
    return {line};
}

void makeFoldersAbsolute(QVariantMap& keys, const QDir& folder)
{
    const auto found = keys.find(QStringLiteral("ApplicationSupport"));
    if (found == keys.end())
        return;
    QVariantList folders = found->toList();
    for (QVariant& path : folders)
        // Relative to the machine file, so both can be moved together.
        path = QDir::cleanPath(folder.absoluteFilePath(pathWithTildeExpanded(path.toString())));
    *found = folders;
}

MachineStep stepFromKeys(QVariantMap keys, const QDir& folder)
{
    MachineStep step;
    step.remove = keys.take(QStringLiteral("Remove")).toStringList();
    const QStringList actions = keys.take(QStringLiteral("Actions")).toStringList();
    for (const QString& name : actions)
        // Checked before any step was made, so every name is known.
        step.actions.push_back(findAction(name)->action);
    const QVariant after = keys.take(QStringLiteral("After"));
    if (after.isValid())
        // 0 first: a time that is not a number (NaN) becomes 0 too.
        step.after = std::max(0.0, after.toDouble());
    makeFoldersAbsolute(keys, folder);
    step.keys = keys;
    return step;
}

} // namespace

MachineResult readMachineFile(const QString& path)
{
    const FileContents file = fileContents(path, mostPropertyListBytes);
    // Two refusals: one for the file, one for its contents.
    if (file.error != 0)
        return refusal(path, readingFault(file.error));
    const std::optional<QVariant> root = propertyListFromBytes(file.bytes);
    if (!root)
        return refusal(path, QStringLiteral("is not a property list"));
    return machineFromPropertyList(*root, path);
}

NamedMachine machineNamed(const QString& path)
{
    if (path.isEmpty())
        return {};
    MachineResult result = readMachineFile(path);
    if (const auto* refusal = std::get_if<MachineRefusal>(&result))
        return {std::nullopt, refusal->line};
    return {std::get<Machine>(std::move(result)), {}};
}

MachineResult machineFromPropertyList(const QVariant& root, const QString& path)
{
    if (!isDictionary(root))
        return refusal(path, QStringLiteral("must be a dictionary"));
    Machine machine{root.toMap(), {}, path};
    // All of it before anything is played: a refused file must not be half played.
    if (const Verdict fault = checkMachine(machine.keys))
        return refusal(path, fault->inside + QStringLiteral(": ") + fault->reason);
    const QDir folder = QFileInfo(path).absoluteDir();
    const QVariantList steps = machine.keys.take(QStringLiteral("Steps")).toList();
    for (const QVariant& step : steps)
        machine.steps.push_back(stepFromKeys(step.toMap(), folder));
    makeFoldersAbsolute(machine.keys, folder);
    return machine;
}

} // namespace quindle
