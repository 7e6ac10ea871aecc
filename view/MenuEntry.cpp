#include "view/MenuEntry.h"

#include <QPainter>
#include <QStyle>

#include "view/ViewMetrics.h"
#include "widgets/PaletteMix.h"
#include "widgets/PlainText.h"

namespace quindle {

namespace {

constexpr double chosenShare = 0.07;

} // namespace

MenuEntry::MenuEntry(QWidget* parent)
    : PlainButton(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize MenuEntry::sizeHint() const
{
    const ViewMetrics metrics(*this);
    return {plainLineWidth(fontMetrics(), label()) + 2 * metrics.margin,
            qRound(fontMetrics().height() * 1.5)};
}

QSize MenuEntry::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

void MenuEntry::enterEvent(QEnterEvent* event)
{
    PlainButton::enterEvent(event);
    // The pointer takes the keyboard along, so that two entries never look chosen.
    if (isEnabled())
        setFocus(Qt::MouseFocusReason);
}

void MenuEntry::leaveEvent(QEvent* event)
{
    PlainButton::leaveEvent(event);
    clearFocus();
}

void MenuEntry::paintEvent(QPaintEvent*)
{
    const ViewMetrics metrics(*this);
    QPainter painter(this);
    const QColor background = backgroundOf(*this);
    // Also while the window is not active, as a popup is not everywhere.
    const QColor text = palette().color(QPalette::Active, foregroundRole());
    const int inset = metrics.margin / 3;
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(mixed(text, background, isDown() ? 2 * chosenShare : chosenShare));
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, 0, -inset, 0), inset, inset);
    }
    painter.setPen(isEnabled() ? text : quietText(palette(), text, background));
    const auto alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    drawPlainLine(painter, rect().adjusted(metrics.margin, 0, -metrics.margin, 0), alignment, label());
}

} // namespace quindle

#include "moc_MenuEntry.cpp"
