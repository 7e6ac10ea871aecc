#pragma once

#include <functional>

#include <QString>

namespace quindle {

/// What the desktop shows the user in a window of its own.
struct Notification
{
    enum class Urgency {
        Low,
        Normal,
        Critical, ///< stays until it is closed
    };

    QString title;
    QString text;
    QString iconName; ///< of the desktop's theme
    Urgency urgency = Urgency::Normal;

    friend bool operator==(const Notification&, const Notification&) = default;
};

/// The one notification that this program shows. Nothing waits for the desktop. Main thread only.
class Notifier
{
public:
    virtual ~Notifier() = default;

    /// Shows it, replacing the previous one. Where nothing shows notifications one line is logged, once.
    virtual void show(const Notification& notification) = 0;

    /// Closes what is shown; does nothing otherwise.
    virtual void withdraw() = 0;
};

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
