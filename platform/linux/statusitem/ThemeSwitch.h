#pragma once

#include <functional>

#include <QDBusConnection>
#include <QObject>

#include "platform/RateLimit.h"

namespace quindle {

class RunLoop;

/// Hears when the desktop's user chooses another theme, from GTK's desktops: the settings portal, Xfce's
/// settings, MATE's. The panel then has other colours soon. Nobody is asked, and at rest nothing happens.
/// Main thread only.
class ThemeSwitch final : public QObject
{
    Q_OBJECT

public:
    /// `look` is called from the main loop, at once and when panels have had time to follow, at most twice a
    /// second. The loop must live longer.
    ThemeSwitch(RunLoop& runLoop, std::function<void()> look);

    /// The session bus from now on; one that is not connected is none.
    void setBus(QDBusConnection bus);

private Q_SLOTS:
    void hear();

private:
    RateLimit m_looks;
};

} // namespace quindle
