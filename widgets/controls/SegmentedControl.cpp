#include "widgets/controls/SegmentedControl.h"

#include <algorithm>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOption>

namespace quindle {

namespace {

constexpr double verticalPadding = 0.3; // of a line, above and below
constexpr double radiusShare = 0.3;     // of a line
constexpr float lineAlpha = 0.25F;
constexpr float hoverAlpha = 0.06F;
constexpr float pressedAlpha = 0.14F;
constexpr int minimumLines = 4;

QColor faded(QColor color, float alpha)
{
    color.setAlphaF(alpha);
    return color;
}

/// A radio button drawn as its part of the whole control.
class Segment : public QRadioButton
{
public:
    explicit Segment(const QString& title, QWidget* parent)
        : QRadioButton(title, parent)
    {
        setAttribute(Qt::WA_Hover);
    }

    QSize sizeHint() const override
    {
        const int line = fontMetrics().height();
        const int title = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
        return {segmentWidth(title, line), line + 2 * qRound(line * verticalPadding)};
    }

    QSize minimumSizeHint() const override { return sizeHint(); }

    /// Whether a click is what changes it at the moment.
    bool isClicking() const { return m_isClicking; }

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

    void nextCheckState() override
    {
        const QScopedValueRollback clicking(m_isClicking, true);
        QRadioButton::nextCheckState();
    }

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QPainterPath outline = controlOutline();
        painter.fillPath(outline, palette().color(QPalette::Button));
        if (isChecked())
            painter.fillPath(outline, palette().color(QPalette::Highlight));
        const QColor ink = palette().color(isChecked() ? QPalette::HighlightedText : QPalette::ButtonText);
        if (isDown() || (underMouse() && !isChecked()))
            painter.fillPath(outline, faded(ink, isDown() ? pressedAlpha : hoverAlpha));
        drawLines(painter, outline);
        drawFocus(painter, ink);
        painter.setPen(ink);
        painter.drawText(rect(), Qt::AlignCenter | mnemonicFlag(), text());
    }

private:
    /// The whole control's, in this segment's coordinates: anything outside the segment is clipped.
    QPainterPath controlOutline() const
    {
        const double radius = fontMetrics().height() * radiusShare;
        const QRectF control = QRectF(parentWidget()->rect()).translated(-pos());
        QPainterPath path;
        path.addRoundedRect(control.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
        return path;
    }

    void drawLines(QPainter& painter, const QPainterPath& outline) const
    {
        if (isChecked())
            return;
        const QColor line = faded(palette().color(QPalette::WindowText), lineAlpha);
        painter.setPen(line);
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(outline);
        if (x() > 0)
            painter.fillRect(QRect(0, 1, 1, height() - 2), line);
    }

    /// Only while the keyboard is in use, as the desktop's own controls do.
    void drawFocus(QPainter& painter, const QColor& ink) const
    {
        if (!hasFocus() || !window()->testAttribute(Qt::WA_KeyboardFocusChange))
            return;
        const double radius = fontMetrics().height() * radiusShare / 2;
        painter.setPen(QPen(ink, 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(3, 3, -3, -3), radius, radius);
    }

    int mnemonicFlag() const
    {
        QStyleOption option;
        option.initFrom(this);
        const bool shown = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) != 0;
        return shown ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    }

    bool m_isClicking = false;
};

} // namespace

int segmentWidth(int titleWidth, int lineHeight)
{
    return std::max(titleWidth + 2 * lineHeight, minimumLines * lineHeight);
}

SegmentedControl::SegmentedControl(const QStringList& titles, QWidget* parent)
    : QWidget(parent)
    , m_segments(new QButtonGroup(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (const QString& title : titles) {
        auto* segment = new Segment(title, this);
        m_segments->addButton(segment, segmentCount());
        // An assistive technology selects without a click. A click may also choose what is already selected.
        connect(segment, &Segment::toggled, this, [this, segment](bool selected) {
            if (selected && !segment->isClicking())
                Q_EMIT action();
        });
        layout->addWidget(segment);
    }
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(m_segments, &QButtonGroup::idClicked, this, &SegmentedControl::action);
}

int SegmentedControl::selectedTag() const
{
    return m_segments->checkedId();
}

void SegmentedControl::selectSegmentWithTag(int tag)
{
    if (QAbstractButton* button = m_segments->button(tag)) {
        // The signal means a choice by the user.
        const QSignalBlocker silent(button);
        button->setChecked(true);
    }
}

int SegmentedControl::segmentCount() const
{
    return static_cast<int>(m_segments->buttons().size());
}

QWidget* SegmentedControl::segment(int tag) const
{
    return m_segments->button(tag);
}

} // namespace quindle

#include "moc_SegmentedControl.cpp"
