#pragma once

#include <optional>

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QPointer>

namespace quindle {

class Application;
class BatteryWindow;
class MainInterface;
class RunLoop;

/// Opens and closes the battery view: beside the pointer where windows may place themselves, as an ordinary
/// window on Wayland. Nothing of it exists while it is closed; while it is open the timers are punctual.
class BatteryPopup : public QObject
{
    Q_OBJECT

public:
    /// Becomes what opens and toggles the view of the interface's status menu. All must outlive it.
    BatteryPopup(MainInterface& interface, const Application& application, RunLoop& runLoop,
                 QObject* parent = nullptr);
    ~BatteryPopup() override;

    bool isOpen() const;

    /// Opens it, or brings it to the front. `pointer` is where it was when the user asked for it, if that is
    /// known better than where it is now.
    void open(const std::optional<QPoint>& pointer = {});
    void close();

    /// Opens it when closed and closes it when open. The click that closed it by being outside of it does not
    /// open it again when it reaches the status item.
    void toggle(const std::optional<QPoint>& pointer = {});

private:
    bool isSameClick(const QPoint& pointer) const;

    MainInterface& m_interface;
    const Application& m_application;
    RunLoop& m_runLoop;
    QPointer<BatteryWindow> m_window;
    QElapsedTimer m_sinceClosedOutside;
    QPoint m_closedAt;
};

} // namespace quindle
