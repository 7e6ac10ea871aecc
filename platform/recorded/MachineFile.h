#pragma once

#include <optional>
#include <variant>
#include <vector>

#include <QString>
#include <QStringList>
#include <QVariantMap>

/// Machine files: a recorded or invented computer, and its later states, as one property list.
namespace quindle {

/// What can happen in a step, beside the values that change.
enum class MachineAction {
    BatteryToggleAge,
    BatteryToggleTemperatureMode,
    BatteryLoadSettings,
    BatteryClose,
    BatteryOpen,
    MacToggleAge,
    Sleep,
    Wake,
    SettingsChanged,
    WillUpdateImmediately,
    OpenApplication,
};

/// A later state of a computer, described by what has changed.
struct MachineStep
{
    QStringList remove; ///< paths to take out first
    QVariantMap keys;   ///< then these keys, of the types of the machine file
    std::vector<MachineAction> actions;
    double after = 10; ///< seconds after the previous step; 0 or more
};

/// A computer. `keys` holds the keys of the file, checked: a key that is there has the type that the format
/// says, so readers need not test it again. Relative `ApplicationSupport` folders are absolute already.
struct Machine
{
    QVariantMap keys;
    std::vector<MachineStep> steps;
    QString file = {}; ///< as it was named; empty for an invented computer
};

/// Why a file is not a machine file: one line, "FILE: KEY: reason", with keys inside others as in
/// "Steps[0].Actions" (counted from 0). Without KEY when the file as a whole is at fault.
struct MachineRefusal
{
    QString line;
};

using MachineResult = std::variant<Machine, MachineRefusal>;

/// Reads and checks the file at `path`.
MachineResult readMachineFile(const QString& path);

/// What a program is to run on: this computer where both are empty.
struct NamedMachine
{
    std::optional<Machine> machine;
    QString refusal; ///< the line of a MachineRefusal
};

/// What the file at `path` is; both empty where no file is named.
NamedMachine machineNamed(const QString& path);

/// Checks a property-list value that was read from the file at `path`.
MachineResult machineFromPropertyList(const QVariant& root, const QString& path);

} // namespace quindle
