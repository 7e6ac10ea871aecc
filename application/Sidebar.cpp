#include "application/Sidebar.h"

#include <algorithm>

#include <QEvent>
#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "widgets/PaletteMix.h"
#include "widgets/PlainLabel.h"
#include "widgets/QuietLabel.h"

namespace quindle {

namespace {

constexpr double chosenShare = 0.09; // of the text's colour on the sidebar's
constexpr double hoverShare = 0.04;

/// A row as a rounded plate where it is chosen, with a line around it while it has the keyboard.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override
    {
        // As wide as the list: names are short, and a width would make it scroll.
        return {0, option.fontMetrics.height() * 2};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QPalette& palette = option.palette;
        const bool isChosen = option.state.testFlag(QStyle::State_Selected);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        paintPlate(*painter, option, isChosen);
        QFont font = option.font;
        font.setBold(isChosen);
        painter->setFont(font);
        painter->setPen(palette.color(QPalette::WindowText));
        const int inset = option.fontMetrics.height() * 3 / 4;
        painter->drawText(option.rect.adjusted(inset, 0, -inset, 0),
                          int(QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter)) |
                              Qt::TextSingleLine,
                          index.data(Qt::DisplayRole).toString());
        painter->restore();
    }

private:
    static void paintPlate(QPainter& painter, const QStyleOptionViewItem& option, bool isChosen)
    {
        const bool isHovered = option.state.testFlag(QStyle::State_MouseOver);
        // A focus line in an inactive window would promise keys that go elsewhere.
        const bool hasKeyboard =
            option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_Active);
        if (!isChosen && !isHovered && !hasKeyboard)
            return;
        const QColor text = option.palette.color(QPalette::WindowText);
        const QColor ground = option.palette.color(QPalette::Window);
        painter.setPen(hasKeyboard ? QPen(option.palette.color(QPalette::Highlight), 1) : QPen(Qt::NoPen));
        painter.setBrush(isChosen || isHovered ? mixed(text, ground, isChosen ? chosenShare : hoverShare)
                                               : ground);
        const double radius = option.fontMetrics.height() * 0.35;
        // A pixel inside: where the screen's scale is not whole, the row's own edge would not be cleared.
        painter.drawRoundedRect(QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5), radius, radius);
    }
};

} // namespace

Sidebar::Sidebar(const QStringList& names, QWidget* parent)
    : QWidget(parent)
    , m_list(new QListWidget(this))
    , m_layout(new QVBoxLayout(this))
    , m_name(new PlainLabel(this))
    , m_state(new PlainLabel(this))
{
    m_list->setAccessibleName(tr("Pages"));
    m_list->addItems(names);
    m_list->setItemDelegate(new RowDelegate(m_list));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMouseTracking(true);
    m_list->viewport()->setAutoFillBackground(false);
    m_layout->addWidget(m_list, 1);
    for (PlainLabel* label : {m_name, m_state}) {
        label->setQuiet(true);
        label->hide();
        m_layout->addWidget(label);
    }
    connect(m_list, &QListWidget::currentRowChanged, this, &Sidebar::chosen);
    fitToFont();
}

void Sidebar::choose(int index)
{
    m_list->setCurrentRow(index);
}

void Sidebar::setComputer(const QString& name, const QString& state)
{
    m_name->setText(name);
    m_name->setVisible(!name.isEmpty());
    m_state->setText(state);
    m_state->setVisible(!state.isEmpty());
}

void Sidebar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitToFont();
    QWidget::changeEvent(event);
}

int Sidebar::widestTitle() const
{
    QFont chosen = font();
    chosen.setBold(true);
    const QFontMetrics metrics(chosen);
    int widest = 0;
    for (int row = 0; row < m_list->count(); ++row)
        widest = std::max(widest, metrics.horizontalAdvance(m_list->item(row)->text()));
    return widest;
}

void Sidebar::fitToFont()
{
    const int line = fontMetrics().height();
    // Languages have longer titles than English; around them is the plate's room and the margin.
    setFixedWidth(std::max(line * 9, widestTitle() + line * 11 / 4));
    m_layout->setContentsMargins(line / 2, line, line / 2, line);
    m_layout->setSpacing(line / 8);
    m_list->setSpacing(line / 16);
    for (PlainLabel* label : {m_name, m_state}) {
        label->setFont(quietFont(font()));
        label->setContentsMargins(line * 3 / 4, 0, 0, 0);
    }
}

} // namespace quindle

#include "moc_Sidebar.cpp"
