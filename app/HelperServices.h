#pragma once

#include <memory>

#include <QString>

#include "platform/Platform.h"

namespace quindle {

class HelperAppDelegate;
struct Machine;

/// What the helper runs on: this computer, or the one that a machine file recorded, shown in this desktop's
/// tray and moving on this desktop's loop either way.
class HelperServices
{
public:
    virtual ~HelperServices() = default;

    virtual Platform platform() = 0;

    /// The program of the helper's windows.
    virtual QString windowsProgram() const = 0;

    /// The program that keeps the history of charge and power; empty where none is to be kept: in this
    /// computer's there is no place for another one, read from another folder or recorded, unless the machine
    /// file itself stores that its history is recorded.
    virtual QString recordingProgram() const = 0;

    /// Whether commands in the settings are the user's own: a recorded computer's file may be somebody
    /// else's.
    virtual bool mayRunCommands() const = 0;

    /// Plays a recorded computer's later states in their time; does nothing for this computer.
    virtual void play(HelperAppDelegate& delegate) = 0;

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
