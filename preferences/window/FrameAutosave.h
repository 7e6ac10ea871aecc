#pragma once

#include <chrono>
#include <optional>

#include <QObject>
#include <QTimer>

#include "preferences/window/WindowFrame.h"

class QWidget;

namespace quindle {

class UserDefaults;

/// Keeps a window's frame under a name: stored when the window has been moved, or resized by the user, and
/// rests, and when it is hidden; never while it is moving, and not as large as the screen makes it.
class FrameAutosave : public QObject
{
    Q_OBJECT

public:
    /// Who decides the window's size: its content, or the user. The user's is stored without the decorations,
    /// because it is restored before the window has any.
    enum class Sizing { ByContent, ByUser };

    /// Where the desktop does not let a window have a position (`placesWindows` false), only the size counts;
    /// a position stored under another desktop stays. `settleTime`: how long a moved window must rest before
    /// its frame is stored.
    FrameAutosave(QWidget& window, UserDefaults& defaults, QString name, bool placesWindows,
                  std::chrono::milliseconds settleTime = std::chrono::milliseconds(500),
                  Sizing sizing = Sizing::ByContent);

    /// Stores what has not been stored yet.
    ~FrameAutosave() override;

    /// Gives the window the frame stored under the name; false when there is none.
    bool restore();

    /// Moves the window, which may have another size since, to where the restored frame was; within the
    /// screens there are.
    void placeAtRestored();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::optional<WindowFrame> stored() const;
    void save();

    QWidget& m_window;
    UserDefaults& m_defaults;
    QString m_name;
    bool m_placesWindows;
    Sizing m_sizing;
    std::optional<WindowFrame> m_restored;
    QTimer m_settled;
};

} // namespace quindle
