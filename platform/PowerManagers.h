#pragma once

#include <functional>

#include <QString>

namespace quindle {

/// The programs of desktops that warn of a low battery themselves. Main thread only.
class PowerManagers
{
public:
    virtual ~PowerManagers() = default;

    /// Calls `answered` later with the desktop whose program is running ("Xfce"), empty for none or where
    /// that cannot be found out. It is not called after this object is destroyed.
    virtual void ask(std::function<void(const QString& desktop)> answered) = 0;
};

} // namespace quindle
