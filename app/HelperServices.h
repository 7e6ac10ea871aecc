#pragma once

#include <memory>

#include <QByteArray>

#include "app/HelperComputer.h"

namespace quindle {

struct Machine;

/// What the helper runs on, with what it needs to have its windows in another process.
class HelperServices : public HelperComputer
{
public:
    /// The program of the helper's windows.
    virtual QString windowsProgram() const = 0;

    /// What another process must know to go on from here: the samples that times are estimated from, or the
    /// settings of a recorded computer.
    virtual QByteArray memory() const = 0;

    /// How many of a recorded computer's later states have been entered.
    virtual quint32 statesEntered() const = 0;

    /// Stores `values`, a property list, in a recorded computer's settings; does nothing for this computer,
    /// whose settings are files.
    virtual void store(const QString& database, const QByteArray& values) = 0;

    /// This computer; `systemRoot` replaces /sys when it is not empty. Needs a QCoreApplication.
    static std::unique_ptr<HelperServices> ofThisComputer(const QString& systemRoot);

    /// A recorded computer. Needs a QCoreApplication.
    static std::unique_ptr<HelperServices> ofMachine(const Machine& machine);
};

} // namespace quindle
