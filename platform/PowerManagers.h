#pragma once

#include <functional>

#include <QString>

namespace quindle {

/// The programs of desktops that warn of a low battery themselves. Main thread only.
class PowerManagers
{
public:
    virtual ~PowerManagers() = default;

    /// Calls `answered` later with the desktop whose program runs at the moment ("Xfce"), empty for none or
    /// where that cannot be found out.
    /// It is not called any more once this object has gone.
    virtual void ask(std::function<void(const QString& desktop)> answered) = 0;
};

} // namespace quindle
