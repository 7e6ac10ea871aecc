#pragma once

#include <QString>

class QFont;
class QFontMetrics;
class QPainter;
class QRect;

/// Text of users and batteries on screen: always shown literally, never as markup or with a mnemonic.
namespace quindle {

/// Draws one line in the painter's font and pen, cut with an ellipsis where it does not fit. `alignment` is
/// absolute; the text runs in the direction of its own first letter. Returns the rectangle it covers.
QRect drawPlainLine(QPainter& painter, const QRect& rect, Qt::Alignment alignment, const QString& text,
                    Qt::TextElideMode elideMode = Qt::ElideRight);

/// Draws a paragraph of that direction in the painter's font and pen, wrapped between words. `alignment` is
/// absolute. Words that are wider than the rectangle, and lines that have no room in it, reach out of it.
void drawPlainParagraph(QPainter& painter, const QRect& rect, Qt::Alignment alignment,
                        Qt::LayoutDirection direction, const QString& text);

/// How wide that line is when it is not cut.
int plainLineWidth(const QFontMetrics& metrics, const QString& text);

/// How high that line is. Letters from right to left, and marks of direction, may be of a taller font.
int plainLineHeight(const QFont& font, const QString& text);

/// The text for where Qt would take it as rich text (tool tips); empty stays empty.
QString literalToolTip(const QString& text);

/// The text for where Qt would take "&" as a mnemonic.
QString literalLabel(const QString& text);

} // namespace quindle
