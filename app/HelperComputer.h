#pragma once

#include <QString>

#include "platform/Platform.h"

namespace quindle {

class HelperAppDelegate;

/// What the helper runs on: this computer, or the one that a machine file recorded, shown in this desktop's
/// tray and moving on this desktop's loop either way.
class HelperComputer
{
public:
    virtual ~HelperComputer() = default;

    virtual Platform platform() = 0;

    /// The program that keeps the history of charge and power; empty where none is to be kept: what another
    /// folder or a recorded computer says does not belong in this computer's history, unless the machine file
    /// itself stores that its history is recorded.
    virtual QString recordingProgram() const = 0;

    /// Whether commands in the settings are the user's own: a recorded computer's file may be somebody
    /// else's.
    virtual bool mayRunCommands() const = 0;

    /// Plays a recorded computer's later states in their time; does nothing for this computer.
    virtual void play(HelperAppDelegate& delegate) = 0;
};

} // namespace quindle
