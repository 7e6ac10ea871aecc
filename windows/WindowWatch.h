#pragma once

#include <chrono>
#include <functional>

#include <QObject>
#include <QTimer>

namespace quindle {

/// Whether the clipboard holds something of this process's, which would be lost at its end.
bool ownsClipboard();

/// Notices when no window of this process has been open for a while, and nothing else needs it: from its
/// first moment on, and again after each such while. Needs a QApplication.
class WindowWatch final : public QObject
{
public:
    /// `idle` is called from the main loop. `isNeeded` is asked whenever windows or the clipboard change.
    WindowWatch(std::chrono::milliseconds patience, std::function<void()> idle,
                std::function<bool()> isNeeded = ownsClipboard);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void look();

    std::function<void()> m_idle;
    std::function<bool()> m_isNeeded;
    QTimer m_timer;
};

} // namespace quindle
