#include "application/snapshots/SortHeader.h"

#include <algorithm>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace quindle {

namespace {

// The toolkit's own treats every view, even the captions, as a table of all cells.
QAccessibleInterface* accessibleHeader(const QString&, QObject* object)
{
    auto* header = qobject_cast<SortHeader*>(object);
    return header ? new QAccessibleWidget(header, QAccessible::ColumnHeader) : nullptr;
}

Qt::SortOrder opposite(Qt::SortOrder order)
{
    return order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
}

} // namespace

SortHeader::SortHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    QAccessible::installFactory(accessibleHeader); // the same one is installed once only
    setFocusPolicy(Qt::TabFocus);
    setHighlightSections(false);
    setStretchLastSection(true);
    setSectionsClickable(true);
    setAccessibleName(tr("Sort"));
    connect(this, &QHeaderView::sortIndicatorChanged, this, &SortHeader::describe);
}

void SortHeader::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        return choose(m_chosen - 1);
    case Qt::Key_Right:
        return choose(m_chosen + 1);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return sortByChosen();
    default:
        // Not the view's own keys, which would look for a row.
        event->ignore();
    }
}

void SortHeader::choose(int section)
{
    m_chosen = std::clamp(section, 0, std::max(0, count() - 1));
    describe();
    viewport()->update();
}

void SortHeader::sortByChosen()
{
    const QVariant usual = model()->headerData(m_chosen, orientation(), Qt::InitialSortOrderRole);
    const Qt::SortOrder first =
        usual.isValid() ? static_cast<Qt::SortOrder>(usual.toInt()) : Qt::AscendingOrder;
    setSortIndicator(m_chosen, sortIndicatorSection() == m_chosen ? opposite(sortIndicatorOrder()) : first);
}

void SortHeader::describe()
{
    if (!model())
        return;
    const auto caption = [this](int section) {
        return model()->headerData(section, orientation(), Qt::DisplayRole).toString();
    };
    setAccessibleName(tr("Sort by %1").arg(caption(m_chosen)));
    setAccessibleDescription(
        tr("Sorted by %1, %2")
            .arg(caption(sortIndicatorSection()),
                 sortIndicatorOrder() == Qt::AscendingOrder ? tr("ascending") : tr("descending")));
}

void SortHeader::focusInEvent(QFocusEvent* event)
{
    describe();
    QHeaderView::focusInEvent(event);
    viewport()->update();
}

void SortHeader::focusOutEvent(QFocusEvent* event)
{
    QHeaderView::focusOutEvent(event);
    viewport()->update();
}

void SortHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const
{
    painter->save();
    QHeaderView::paintSection(painter, rect, logicalIndex);
    painter->restore();
    if (!hasFocus() || logicalIndex != m_chosen)
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.state |= QStyle::State_KeyboardFocusChange;
    option.rect = rect.adjusted(1, 1, -1, -1);
    option.backgroundColor = palette().color(QPalette::Button);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, painter, this);
}

} // namespace quindle

#include "moc_SortHeader.cpp"
