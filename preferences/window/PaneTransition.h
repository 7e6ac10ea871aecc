#pragma once

#include <QObject>
#include <QPointer>
#include <QSize>
#include <QVariantAnimation>

class QWidget;

namespace quindle {

/// How long a window takes to change to another pane, in milliseconds.
constexpr int paneTransitionDuration = 250;

/// Brings a window to its new size while the view in it fades in, at the same pace; the window keeps its top
/// left corner.
class PaneTransition : public QObject
{
    Q_OBJECT

public:
    explicit PaneTransition(QWidget& window, QObject* parent = nullptr);

    enum class Motion {
        None,
        Fade, ///< the size at once
        FadeAndSize
    };

    /// Ends a transition that is under way.
    void begin(QWidget& view, const QSize& size, Motion motion);

    /// The view wants another size: at once, or at the end of a transition that is under way.
    void setSize(const QSize& size);

    /// Skips to the end.
    void finish();

    bool isRunning() const { return m_animation.state() == QAbstractAnimation::Running; }
    const QVariantAnimation& animation() const { return m_animation; }

private:
    void step(double share);
    void end();

    QWidget& m_window;
    QPointer<QWidget> m_view;
    QVariantAnimation m_animation;
    QSize m_from;
    QSize m_to;
};

} // namespace quindle
