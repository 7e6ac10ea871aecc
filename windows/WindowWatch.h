#pragma once

#include <chrono>
#include <functional>

#include <QObject>
#include <QTimer>

namespace quindle {

/// Notices when no window of this process has been open for a while: from its first moment on, and again
/// after each such while. Needs a QApplication.
class WindowWatch final : public QObject
{
public:
    /// `idle` is called from the main loop.
    WindowWatch(std::chrono::milliseconds patience, std::function<void()> idle);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void look();

    std::function<void()> m_idle;
    QTimer m_timer;
};

} // namespace quindle
