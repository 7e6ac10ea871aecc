#include "widgets/PlainText.h"

#include <algorithm>
#include <limits>

#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>
#include <QtMath>

namespace quindle {

namespace {

// No line on a screen is longer; the rest is not worth measuring.
constexpr qsizetype longestMeasured = 1000;

QString measured(const QString& text)
{
    return text.left(longestMeasured).simplified();
}

} // namespace

QRect drawPlainLine(QPainter& painter, const QRect& rect, Qt::Alignment alignment, const QString& text,
                    Qt::TextElideMode elideMode)
{
    const QString line = painter.fontMetrics().elidedText(measured(text), elideMode, rect.width());
    // By the text, not by the layout: a Hebrew name reads right to left in an English view too.
    const int direction = line.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    const int flags = static_cast<int>(alignment | Qt::AlignAbsolute) | Qt::TextSingleLine | direction;
    QRect covered;
    painter.drawText(rect, flags, line, &covered);
    return covered;
}

void drawPlainParagraph(QPainter& painter, const QRect& rect, Qt::Alignment alignment,
                        Qt::LayoutDirection direction, const QString& text)
{
    QTextLayout layout(QString(text).replace(u'\n', QChar::LineSeparator), painter.font(), painter.device());
    QTextOption option(alignment & Qt::AlignHorizontal_Mask);
    option.setTextDirection(direction);
    option.setWrapMode(QTextOption::WordWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    qreal height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(rect.width());
        line.setPosition({0, height});
        height += line.height() + painter.fontMetrics().leading();
    }
    layout.endLayout();
    const qreal below = rect.height() - (height - painter.fontMetrics().leading());
    const qreal share = alignment & Qt::AlignBottom ? 1 : alignment & Qt::AlignVCenter ? 0.5 : 0;
    layout.draw(&painter, rect.topLeft() + QPointF(0, share * below));
}

int plainLineWidth(const QFontMetrics& metrics, const QString& text)
{
    const QString line = measured(text);
    // Slanted letters reach beyond their advance, and would be cut.
    return std::max(metrics.horizontalAdvance(line), metrics.boundingRect(line).width()) + 1;
}

int plainLineHeight(const QFont& font, const QString& text)
{
    const int usual = QFontMetrics(font).height();
    const QString line = measured(text);
    const auto isOfDirection = [](QChar c) {
        const QChar::Direction direction = c.direction();
        return direction == QChar::DirR || direction == QChar::DirAL || direction == QChar::DirFSI;
    };
    if (std::none_of(line.cbegin(), line.cend(), isOfDirection))
        return usual;
    QTextLayout layout(line, font);
    layout.beginLayout();
    QTextLine whole = layout.createLine();
    // It has no height before it has a width.
    whole.setLineWidth(std::numeric_limits<int>::max() / 256);
    layout.endLayout();
    return std::max(usual, qCeil(whole.height()));
}

QString literalToolTip(const QString& text)
{
    if (text.isEmpty())
        return {};
    QString escaped = text.left(longestMeasured).toHtmlEscaped();
    escaped.replace(u'\n', QStringLiteral("<br/>"));
    // Always markup, or Qt would guess from the text itself whether it is.
    return QStringLiteral("<p>") + escaped + QStringLiteral("</p>");
}

QString literalLabel(const QString& text)
{
    QString label = text;
    return label.replace(u'&', QStringLiteral("&&"));
}

} // namespace quindle
