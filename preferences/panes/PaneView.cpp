#include "preferences/panes/PaneView.h"

#include <algorithm>

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

#include "widgets/QuietLabel.h"
#include "widgets/WarningImage.h"
#include "widgets/controls/LinkButton.h"
#include "widgets/controls/RadioMatrix.h"

namespace quindle {

namespace {

// That of a text, or of the first one of a column of radio buttons.
int firstLineHeight(const QWidget& control)
{
    if (const auto* text = qobject_cast<const QLabel*>(&control))
        return text->minimumSizeHint().height(); // the other hint is for all lines of a narrower text
    const auto* first = control.findChild<QRadioButton*>();
    return (first ? first : &control)->sizeHint().height();
}

} // namespace

PaneView::PaneView(QWidget* parent)
    : QWidget(parent)
{
}

int PaneView::captionWidth() const
{
    const auto* grid = qobject_cast<const QGridLayout*>(layout());
    int widest = 0;
    for (int row = 0; grid && row < grid->rowCount(); ++row)
        if (const QLayoutItem* caption = grid->itemAtPosition(row, 0))
            widest = std::max(widest, caption->sizeHint().width());
    return widest;
}

void PaneView::setCaptionWidth(int width)
{
    m_captionWidth = width;
    fitToFont();
}

void PaneView::fitToFont()
{
    auto* grid = qobject_cast<QGridLayout*>(layout());
    if (!grid)
        return;
    // All distances are in lines of text, so that they suit any font.
    const int line = fontMetrics().height();
    const int margin = m_isCompact ? line : line * 3 / 2;
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setHorizontalSpacing(line);
    grid->setVerticalSpacing(line);
    grid->setColumnMinimumWidth(0, std::max(m_captionWidth, line * (m_isCompact ? 6 : 8)));
    grid->setColumnMinimumWidth(1, m_isCompact ? 0 : line * 19);
    grid->setColumnStretch(1, 1);
    for (QBoxLayout* box : grid->findChildren<QBoxLayout*>())
        box->setSpacing(box->direction() == QBoxLayout::TopToBottom ? line / 3 : line / 2);
    for (auto* matrix : findChildren<RadioMatrix*>())
        matrix->layout()->setSpacing(matrix->isRow() ? line : line / 3);
    alignCaptions();
}

// A caption is level with the control it names, whatever is below that control.
void PaneView::alignCaptions()
{
    const QFont quiet = quietFont(font());
    for (auto* label : findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (qobject_cast<QuietLabel*>(label))
            label->setFont(quiet);
        else if (const QWidget* control = label->buddy())
            label->setMinimumHeight(firstLineHeight(*control));
    }
    for (auto* link : findChildren<LinkButton*>())
        link->setFont(quiet);
    for (auto* image : findChildren<WarningImage*>())
        image->setFont(quiet);
}

void PaneView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitToFont();
    QWidget::changeEvent(event);
}

} // namespace quindle

#include "moc_PaneView.cpp"
