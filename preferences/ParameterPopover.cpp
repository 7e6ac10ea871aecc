#include "preferences/ParameterPopover.h"

#include <algorithm>

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "preferences/PlaceholderTable.h"
#include "preferences/PopoverGeometry.h"
#include "preferences/QuietLabel.h"
#include "preferences/StatusBarTitle.h"

namespace quindle {

namespace {

enum Column { TextColumn, MeaningColumn, ValueColumn, ColumnCount };

QString missingValue()
{
    return QStringLiteral(u"\u2013");
}

void setUpRows(QTreeWidget& rows)
{
    rows.setColumnCount(ColumnCount);
    rows.setHeaderHidden(true);
    rows.setRootIsDecorated(false);
    rows.setUniformRowHeights(true);
    rows.setAllColumnsShowFocus(true);
    rows.setFrameShape(QFrame::NoFrame);
    rows.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rows.header()->setStretchLastSection(true);
    rows.header()->setMinimumSectionSize(0);
}

} // namespace

ParameterPopover::ParameterPopover(const StatusBarTitle& title, QLineEdit& target, QWidget* parent)
    : QFrame(parent, Qt::Popup)
    , m_title(title)
    , m_target(target)
    , m_rows(*new QTreeWidget(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(tr("Parameters"));
    auto* hint = new QuietLabel(this);
    hint->setFont(quietFont(font()));
    hint->setText(tr("Choose a parameter to insert it"));
    m_rows.setAccessibleName(tr("Parameters of the menu bar text"));
    setUpRows(m_rows);
    for (const Placeholder& placeholder : placeholderTable())
        m_rows.addTopLevelItem(new QTreeWidgetItem({placeholder.text, placeholder.meaning}));
    m_rows.setCurrentItem(m_rows.topLevelItem(0));
    m_rows.installEventFilter(this);
    connect(&m_rows, &QTreeWidget::itemClicked, this, &ParameterPopover::insertCurrent);
    auto* column = new QVBoxLayout(this);
    column->addWidget(hint);
    column->addWidget(&m_rows);
    setFocusProxy(&m_rows);
}

void ParameterPopover::showRelativeTo(const QWidget& sender)
{
    fillRows();
    fitToRows();
    const QRect anchor(sender.mapToGlobal(QPoint()), sender.size());
    move(popoverPosition(anchor, size(), sender.screen()->availableGeometry(), sender.layoutDirection(),
                         fontMetrics().height() / 4));
    show();
    m_rows.setFocus(Qt::PopupFocusReason);
}

void ParameterPopover::refresh()
{
    if (!isVisible())
        return;
    fillRows();
    fitToRows();
}

// Enter is not left to the view: what else activates a row (one click or two) differs between desktops, and a
// click would insert twice.
bool ParameterPopover::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space)
        return QFrame::eventFilter(watched, event);
    insertCurrent();
    return true;
}

void ParameterPopover::fillRows()
{
    const auto values = m_title.titleValues();
    for (int row = 0; row < m_rows.topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = m_rows.topLevelItem(row);
        const QString text = item->text(TextColumn);
        const QString value = values ? titleFromTemplate(text, *values) : missingValue();
        item->setText(ValueColumn, value);
        item->setTextAlignment(ValueColumn, Qt::AlignRight | Qt::AlignVCenter);
        item->setData(TextColumn, Qt::AccessibleTextRole,
                      tr("%1, %2, now %3").arg(text, item->text(MeaningColumn), value));
    }
}

// Every row and every column in full, without scroll bars.
void ParameterPopover::fitToRows()
{
    const int line = fontMetrics().height();
    layout()->setContentsMargins(line / 2, line / 2, line / 2, line / 2);
    layout()->setSpacing(line / 3);
    for (int row = 0; row < m_rows.topLevelItemCount(); ++row)
        m_rows.topLevelItem(row)->setSizeHint(TextColumn, QSize(0, line * 3 / 2));
    int width = 0;
    for (int column = 0; column < ColumnCount; ++column) {
        m_rows.resizeColumnToContents(column);
        m_rows.setColumnWidth(column, m_rows.columnWidth(column) + line / 2);
        width += m_rows.columnWidth(column);
    }
    const int rowHeight = m_rows.visualItemRect(m_rows.topLevelItem(0)).height();
    m_rows.setFixedSize(width, std::max(rowHeight, line * 3 / 2) * m_rows.topLevelItemCount());
    adjustSize();
}

void ParameterPopover::insertCurrent()
{
    m_target.insert(m_rows.currentItem()->text(TextColumn));
    Q_EMIT inserted();
}

} // namespace quindle
