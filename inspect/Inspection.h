#pragma once

#include <memory>

#include <QVariantMap>

#include "app/HelperAppDelegate.h"
#include "menubar/MainInterface.h"
#include "settings/ApplicationPreferences.h"

namespace quindle {

class Computer;

/// The helper's own objects, launched on a computer and looked at instead of shown.
class Inspection
{
public:
    /// Constructs and launches the helper. `isDemo` replaces the computer's own model by the demonstration
    /// computer's.
    Inspection(Computer& computer, bool isDemo);

    /// Plays one later state of the computer.
    void playStep(std::size_t index);

    /// The present state (see JsonState.h); its events are those since the last call.
    QVariantMap takeState();

    HelperAppDelegate& delegate() { return m_delegate; }
    const MainInterface& interface() const { return m_interface; }

    const ApplicationPreferences& preferences() const { return m_preferences; }

    const QDMac& mac() const { return m_delegate.myMac(); }

private:
    Computer& m_computer;
    ApplicationPreferences m_preferences;
    MainInterface m_interface;
    HelperAppDelegate m_delegate;
    int m_refreshes = 0;
    int m_uploadsStarted = 0;
};

} // namespace quindle
