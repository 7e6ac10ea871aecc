#include "application/pages/ScrollPage.h"

#include <QEvent>
#include <QScrollBar>

namespace quindle {

ScrollPage::ScrollPage(QWidget* parent)
    : QScrollArea(parent)
    , m_content(new QWidget)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::TabFocus);
    setWidget(m_content);
    // The window draws what is behind a page.
    viewport()->setAutoFillBackground(false);
    m_content->setAutoFillBackground(false);
}

QSize ScrollPage::minimumSizeHint() const
{
    const int width = m_content->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    return {width, QScrollArea::minimumSizeHint().height()};
}

bool ScrollPage::eventFilter(QObject* watched, QEvent* event)
{
    // Another font or other words.
    if (watched == m_content && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace quindle

#include "moc_ScrollPage.cpp"
