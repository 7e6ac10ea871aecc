#include "preferences/panes/TitlePreview.h"

#include <algorithm>

#include <QEvent>
#include <QHBoxLayout>
#include <QImage>
#include <QPainter>
#include <QStyle>

#include "platform/ShownItem.h"
#include "preferences/panes/StatusBarTitle.h"
#include "widgets/PaletteMix.h"
#include "widgets/PlainLabel.h"
#include "widgets/QuietLabel.h"
#include "widgets/controls/BoundControls.h"

namespace quindle {

TitlePreview::TitlePreview(QWidget* parent)
    : QWidget(parent)
    , m_caption(*new QuietLabel(this))
    , m_shown(*new PlainLabel(this))
{
    auto* row = new QHBoxLayout(this);
    row->addWidget(&m_caption);
    row->addWidget(&m_shown, 1);
    showPending(false);
    m_caption.setBuddy(&m_shown);
    m_shown.setObjectName(QStringLiteral("shownTitle"));
    // Both ends of a title matter, and the row stays as wide as its pane.
    m_shown.setElideMode(Qt::ElideMiddle);
    m_shown.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_shown.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    fitToFont();
}

void TitlePreview::follow(const BoundLineEdit& field, const StatusBarTitle& title)
{
    m_titleTemplate = field.text();
    connect(&field, &QLineEdit::textChanged, this, &TitlePreview::setTitleTemplate);
    connect(&field, &BoundLineEdit::pendingChanged, this, [this, &field] {
        showPending(field.isPending());
        refresh();
    });
    showPending(field.isPending());
    m_followsField = true;
    follow(title);
}

void TitlePreview::follow(const StatusBarTitle& title)
{
    m_title = &title;
    watch(isVisible());
    refresh();
}

void TitlePreview::setTitleTemplate(const QString& titleTemplate)
{
    m_titleTemplate = titleTemplate;
    refresh();
}

void TitlePreview::refresh()
{
    // A field is for a text, which panels that do not show it have in their tool tip.
    const auto item = m_followsField ? std::nullopt : m_title->shownItem();
    const auto values = m_title->titleValues();
    if (item)
        showItem(*item);
    else if (values)
        showTitle(titleFromTemplate(m_titleTemplate, *values), tr("no text"));
    else
        showTitle({}, tr("no text without a battery"));
    m_shown.setAccessibleName((m_isPending ? tr("Would show %1") : tr("Now shows %1")).arg(m_shown.text()));
}

void TitlePreview::showTitle(const QString& title, const QString& instead)
{
    m_shown.setQuiet(title.isEmpty());
    m_shown.setText(title.isEmpty() ? instead : title);
}

void TitlePreview::showItem(const ShownItem& item)
{
    using Form = ShownItem::Form;
    m_picture = QImage::fromData(item.picture, "PNG").convertToFormat(QImage::Format_ARGB32_Premultiplied);
    update();
    if (item.form == Form::Text)
        showTitle(item.text, tr("no text"));
    else if (item.form == Form::Number)
        showTitle({}, tr("the number %1").arg(item.text));
    else
        showTitle({}, item.form == Form::Icon ? tr("the icon alone") : tr("nothing, without a panel"));
}

// Before the text, as panels have it; nowhere where the text needs all the room.
QRect TitlePreview::pictureRect() const
{
    const int side = fontMetrics().height();
    const int gap = side / 3;
    const int width = m_shown.fontMetrics().horizontalAdvance(m_shown.text());
    if (m_picture.isNull() || width + gap + side > m_shown.width())
        return {};
    const QRect leftToRight(m_shown.geometry().right() + 1 - width - gap - side, (height() - side) / 2, side,
                            side);
    return QStyle::visualRect(layoutDirection(), rect(), leftToRight);
}

// In the colour of the text, as panels do.
void TitlePreview::paintPicture(QPainter& painter) const
{
    QImage coloured = m_picture;
    QPainter colours(&coloured);
    colours.setCompositionMode(QPainter::CompositionMode_SourceIn);
    colours.fillRect(coloured.rect(), textOf(*this));
    colours.end();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(pictureRect(), coloured);
}

void TitlePreview::showPending(bool isPending)
{
    m_isPending = isPending;
    m_caption.setText(isPending ? tr("Would show") : tr("Now shows"));
}

void TitlePreview::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitToFont();
    QWidget::changeEvent(event);
}

void TitlePreview::showEvent(QShowEvent* event)
{
    watch(true);
    QWidget::showEvent(event);
}

void TitlePreview::hideEvent(QHideEvent* event)
{
    watch(false);
    QWidget::hideEvent(event);
}

void TitlePreview::watch(bool isSeen)
{
    m_watched = isSeen && m_title ? m_title->watchValues() : nullptr;
}

void TitlePreview::fitToFont()
{
    const int line = fontMetrics().height();
    layout()->setContentsMargins(line / 2, line * 3 / 10, line / 2, line * 3 / 10);
    layout()->setSpacing(line);
    m_caption.setFont(quietFont(font()));
    // Nothing moves while somebody types.
    const QFontMetrics metrics = m_caption.fontMetrics();
    m_caption.setMinimumWidth(
        std::max(metrics.horizontalAdvance(tr("Now shows")), metrics.horizontalAdvance(tr("Would show"))));
}

void TitlePreview::paintEvent(QPaintEvent*)
{
    constexpr double share = 0.06;
    const double radius = fontMetrics().height() * 0.3;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(textOf(*this), backgroundOf(*this), share));
    painter.drawRoundedRect(rect(), radius, radius);
    if (!pictureRect().isEmpty())
        paintPicture(painter);
}

} // namespace quindle

#include "moc_TitlePreview.cpp"
