#include "view/menuIndicator.h"

#include <algorithm>
#include <cmath>

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "menubar/ProgressIndicator.h"
#include "view/HueAdjust.h"
#include "widgets/PaletteMix.h"

namespace quindle {

namespace {

constexpr double trackShare = 0.12;

double drawnShare(double percent)
{
    return std::isnan(percent) ? 0 : std::clamp(percent / 100, 0.0, 1.0);
}

QPainterPath rounded(const QRectF& rect, double radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

QLinearGradient shaded(const QColor& color, const QRectF& rect)
{
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setColorAt(0, color.lighter(108));
    gradient.setColorAt(1, color.darker(104));
    return gradient;
}

} // namespace

menuIndicator::menuIndicator(QWidget* parent)
    : QProgressBar(parent)
{
    setRange(0, 100);
    setTextVisible(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

menuIndicator::~menuIndicator()
{
    if (m_indicator)
        // The indicator outlives the view, which is made anew at each opening.
        m_indicator->setObserver({});
}

void menuIndicator::follow(ProgressIndicator& indicator)
{
    m_indicator = &indicator;
    indicator.setObserver([this] { update(); });
    update();
}

void menuIndicator::setPercent(double percent)
{
    if (percent == m_percent)
        return;
    m_percent = percent;
    setValue(static_cast<int>(std::lround(drawnShare(percent) * 100))); // what assistive programs read
    update();
}

// The filters turn this hue by 4, -16 and 241 radians: to about 113°, 47° and 12°.
QColor menuIndicator::baseColor(bool onDark)
{
    return onDark ? QColor::fromHsv(244, 165, 204) : QColor::fromHsv(244, 178, 200);
}

QSize menuIndicator::sizeHint() const
{
    // Thin bars of small fonts would lose their round ends.
    const int thickness = std::max(4, qRound(fontMetrics().height() * 0.42));
    return {12 * fontMetrics().height(), thickness};
}

QSize menuIndicator::minimumSizeHint() const
{
    return {4 * fontMetrics().height(), sizeHint().height()};
}

QColor menuIndicator::fillColor() const
{
    QColor color = baseColor(isDark(backgroundOf(*this)));
    if (!m_indicator)
        return color;
    for (const auto& filter : m_indicator->contentFilters())
        color = filtered(color, *filter);
    return color;
}

void menuIndicator::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    const QRectF track = rect();
    const double radius = track.height() / 2;
    const QPainterPath trackShape = rounded(track, radius);
    painter.fillPath(trackShape, mixed(textOf(*this), backgroundOf(*this), trackShare));

    if (hasStrongContrast(palette()))
        // A pale track would be the only sign of where the bar ends.
        painter.strokePath(rounded(track.adjusted(0.5, 0.5, -0.5, -0.5), radius), QPen(textOf(*this), 1));

    // A fill narrower than its own rounding keeps its true width: it is cut out of the track's round end.
    const double filled = track.width() * drawnShare(m_percent);
    if (filled <= 0)
        return;
    QRectF fill = track.adjusted(-track.height(), 0, filled - track.width(), 0);
    if (layoutDirection() == Qt::RightToLeft)
        fill.moveLeft(track.right() - filled);
    painter.fillPath(rounded(fill, radius).intersected(trackShape), shaded(fillColor(), track));
}

} // namespace quindle

#include "moc_menuIndicator.cpp"
