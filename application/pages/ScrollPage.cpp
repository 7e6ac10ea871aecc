#include "application/pages/ScrollPage.h"

namespace quindle {

ScrollPage::ScrollPage(QWidget* parent)
    : QScrollArea(parent)
    , m_content(new QWidget)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setFocusPolicy(Qt::TabFocus);
    setWidget(m_content);
    // The window draws what is behind a page.
    viewport()->setAutoFillBackground(false);
    m_content->setAutoFillBackground(false);
}

} // namespace quindle

#include "moc_ScrollPage.cpp"
