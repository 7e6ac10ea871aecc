#include "widgets/QuietLabel.h"

#include <QFontInfo>
#include <QPainter>
#include <QStyle>

#include "widgets/PaletteMix.h"

namespace quindle {

QuietLabel::QuietLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void QuietLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(quietTextOf(*this));
    const Qt::Alignment aligned = QStyle::visualAlignment(layoutDirection(), alignment());
    const int wrap = wordWrap() ? Qt::TextWordWrap : 0;
    constexpr bool looksEnabled = true;
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(aligned) | wrap, palette(), looksEnabled,
                          text());
}

QFont quietFont(const QFont& font)
{
    constexpr double share = 0.93;
    QFont smaller = font;
    smaller.setPointSizeF(QFontInfo(font).pointSizeF() * share);
    return smaller;
}

} // namespace quindle

#include "moc_QuietLabel.cpp"
