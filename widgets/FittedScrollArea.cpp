#include "widgets/FittedScrollArea.h"

#include <algorithm>

#include <QEvent>
#include <QScreen>
#include <QStyle>

namespace quindle {

FittedScrollArea::FittedScrollArea(QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    // Tab goes from control to control; the area itself would be a stop where nothing happens.
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
}

QSize FittedScrollArea::sizeHint() const
{
    const QSize size = widget() ? widget()->sizeHint() : QSize();
    if (size.height() <= room())
        return size;
    // The scroll bar stands beside the widget, not on it.
    return {size.width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this), room()};
}

int FittedScrollArea::room() const
{
    // The frame is not known before the window is shown.
    const int frame = std::max(window()->frameGeometry().height() - window()->height(),
                               style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this));
    return screen()->availableGeometry().height() - frame;
}

// A scroll area does not pass on that its widget wants another size.
bool FittedScrollArea::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace quindle

#include "moc_FittedScrollArea.cpp"
