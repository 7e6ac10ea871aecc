#include "preferences/panes/ParameterPopover.h"

#include <algorithm>

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "common/Translation.h"
#include "facts/ValueTexts.h"
#include "preferences/panes/PlaceholderTable.h"
#include "preferences/panes/StatusBarTitle.h"
#include "widgets/PopupGeometry.h"
#include "widgets/QuietLabel.h"

namespace quindle {

namespace {

enum Column { TextColumn, MeaningColumn, ValueColumn, ColumnCount };

// Between the marks that keep "%p" and "-1043" in order within text that runs from right to left.
QString leftToRight(const QString& text)
{
    return QChar(0x2066) + text + QChar(0x2069);
}

QRect onScreen(const QWidget& widget)
{
    return {widget.mapToGlobal(QPoint()), widget.size()};
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

// As the target's child: another widget's popup would count as leaving the field, and store its text.
ParameterPopover::ParameterPopover(const StatusBarTitle& title, QLineEdit& target)
    : QFrame(&target, Qt::Popup)
    , m_title(title)
    , m_target(target)
    , m_rows(*new QTreeWidget(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAttribute(Qt::WA_NoMouseReplay); // the click that closes it on its button does not open it again
    setAccessibleName(tr("Parameters"));
    auto* hint = new QuietLabel(this);
    hint->setFont(quietFont(font()));
    hint->setText(tr("Choose a parameter to insert it"));
    m_rows.setAccessibleName(tr("Parameters of the menu bar text"));
    setUpRows(m_rows);
    for (const Placeholder& placeholder : placeholderTable())
        m_rows.addTopLevelItem(new QTreeWidgetItem(
            {leftToRight(placeholder.text), translated("Placeholders", placeholder.meaning)}));
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
    m_anchor = onScreen(sender);
    m_available = sender.screen()->availableGeometry();
    ensurePolished(); // the frame's width is the style's
    fillRows();
    fitToRows();
    place();
    show();
    m_rows.setFocus(Qt::PopupFocusReason);
}

void ParameterPopover::refresh()
{
    if (!isVisible())
        return;
    fillRows();
    fitToRows();
    place();
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
    int row = 0;
    for (const Placeholder& placeholder : placeholderTable()) {
        QTreeWidgetItem* item = m_rows.topLevelItem(row++);
        const QString value = values ? presentValue(placeholder, *values) : missingValueText();
        item->setText(ValueColumn, leftToRight(value));
        item->setTextAlignment(ValueColumn, Qt::AlignRight | Qt::AlignVCenter);
        item->setData(TextColumn, Qt::AccessibleTextRole,
                      tr("%1, %2, now %3")
                          .arg(placeholder.text, translated("Placeholders", placeholder.meaning), value));
    }
}

void ParameterPopover::place()
{
    const auto geometry = [this] {
        return popoverGeometry(m_anchor, size(), onScreen(m_target), m_available, layoutDirection(),
                               fontMetrics().height() / 4);
    };
    // On a low screen some rows are scrolled to.
    if (const int missing = height() - geometry().height(); missing > 0) {
        const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &m_rows);
        m_rows.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        m_rows.setFixedSize(m_rows.width() + scrollBar, m_rows.height() - missing);
        fitToContent();
    }
    move(geometry().topLeft());
}

// Every row and every column in full, without scroll bars.
void ParameterPopover::fitToRows()
{
    const int line = fontMetrics().height();
    const int rowHeight = line * 3 / 2;
    layout()->setContentsMargins(line / 2, line / 2, line / 2, line / 2);
    layout()->setSpacing(line / 3);
    int width = 0;
    for (int column = 0; column < ColumnCount; ++column) {
        int widest = 0;
        for (int row = 0; row < m_rows.topLevelItemCount(); ++row) {
            QTreeWidgetItem* item = m_rows.topLevelItem(row);
            widest = std::max(widest, fontMetrics().horizontalAdvance(item->text(column)));
            item->setSizeHint(column, QSize(0, rowHeight));
        }
        m_rows.setColumnWidth(column, widest + line);
        width += widest + line;
    }
    m_rows.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_rows.setFixedSize(width, rowHeight * m_rows.topLevelItemCount());
    fitToContent();
}

// Not by adjustSize, which stops at two thirds of the screen.
void ParameterPopover::fitToContent()
{
    layout()->activate();
    resize(sizeHint());
}

void ParameterPopover::insertCurrent()
{
    const int row = m_rows.indexOfTopLevelItem(m_rows.currentItem());
    // First, so that the window gives the keyboard to the target, not back to the button.
    close();
    m_target.setFocus(Qt::OtherFocusReason);
    m_target.insert(placeholderTable().at(static_cast<std::size_t>(row)).text);
    Q_EMIT inserted();
}

} // namespace quindle

#include "moc_ParameterPopover.cpp"
