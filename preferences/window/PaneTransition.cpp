#include "preferences/window/PaneTransition.h"

#include <QGraphicsOpacityEffect>
#include <QWidget>

namespace quindle {

namespace {

QEasingCurve easeInEaseOut()
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    // The usual control points of "ease in, ease out".
    curve.addCubicBezierSegment({0.42, 0}, {0.58, 1}, {1, 1});
    return curve;
}

QSize between(const QSize& from, const QSize& to, double share)
{
    return {qRound(from.width() + (to.width() - from.width()) * share),
            qRound(from.height() + (to.height() - from.height()) * share)};
}

} // namespace

PaneTransition::PaneTransition(QWidget& window, QObject* parent)
    : QObject(parent)
    , m_window(window)
{
    m_animation.setDuration(paneTransitionDuration);
    m_animation.setEasingCurve(easeInEaseOut());
    m_animation.setStartValue(0.0);
    m_animation.setEndValue(1.0);
    connect(&m_animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& share) { step(share.toDouble()); });
    connect(&m_animation, &QVariantAnimation::finished, this, &PaneTransition::end);
}

void PaneTransition::begin(QWidget& view, const QSize& size, Motion motion)
{
    finish();
    m_view = &view;
    m_to = size;
    m_from = motion == Motion::FadeAndSize ? m_window.size() : size;
    if (motion == Motion::None) {
        end();
        return;
    }
    // The effect is there for the transition only: it draws the view through a picture of its own.
    view.setGraphicsEffect(new QGraphicsOpacityEffect(&view));
    // Before the next frame is drawn, which would show the view whole.
    step(0);
    m_animation.start();
}

void PaneTransition::setSize(const QSize& size)
{
    m_to = size;
    if (!isRunning())
        m_window.setFixedSize(size);
}

void PaneTransition::finish()
{
    if (!isRunning())
        return;
    m_animation.stop();
    end();
}

void PaneTransition::step(double share)
{
    // Fixed at each step, since the window cannot be resized by hand.
    m_window.setFixedSize(between(m_from, m_to, share));
    // A view belongs to its pane, which may go while the view fades in.
    if (!m_view)
        return;
    if (auto* effect = qobject_cast<QGraphicsOpacityEffect*>(m_view->graphicsEffect()))
        effect->setOpacity(share);
}

void PaneTransition::end()
{
    m_window.setFixedSize(m_to);
    if (m_view)
        m_view->setGraphicsEffect(nullptr);
}

} // namespace quindle

#include "moc_PaneTransition.cpp"
