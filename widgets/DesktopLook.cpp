#include "widgets/DesktopLook.h"

#include <utility>

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>

#include "widgets/PaletteMix.h"
#include "widgets/PlainText.h"

namespace quindle {

namespace {

/// The toolkit's style with another answer to two questions, and wrapped text laid out anew.
class WindowStyle : public QProxyStyle
{
public:
    WindowStyle(const QString& toolkits, bool isStill)
        : QProxyStyle(toolkits)
        , m_isStill(isStill)
    {
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override
    {
        if (m_isStill && (hint == SH_Widget_Animation_Duration || hint == SH_Widget_Animate))
            return 0;
        // Marked letters are drawn alone: Arabic ones no longer join, and the text is wider than its place.
        if (hint == SH_UnderlineShortcut && QApplication::isRightToLeft())
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }

    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool isEnabled, const QString& text, QPalette::ColorRole role) const override
    {
        // The toolkit begins the first of several lines too far in, by a blank, where they run right to left.
        const bool isParagraph = (flags & Qt::TextWordWrap) && !(flags & Qt::TextShowMnemonic);
        if (!isParagraph || !QApplication::isRightToLeft()) {
            QProxyStyle::drawItemText(painter, rect, flags, palette, isEnabled, text, role);
            return;
        }
        const bool isForced = flags & Qt::TextForceRightToLeft;
        const auto direction = isForced || text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
        const QPen pen = painter->pen();
        if (role != QPalette::NoRole)
            painter->setPen(palette.color(role));
        drawPlainParagraph(*painter, rect, Qt::Alignment(flags), direction, text);
        painter->setPen(pen);
    }

private:
    bool m_isStill;
};

struct Tones
{
    QColor window;
    QColor base;
    QColor button;
    QColor text;
    QColor hint;
    QColor chosen;
    QColor textOfChosen;
    QColor link;
};

Tones tonesFor(const DesktopWishes& wishes)
{
    if (wishes.hasStrongContrast && wishes.isDark)
        return {Qt::black, Qt::black, QColor(0x30, 0x30, 0x30), Qt::white, Qt::white,
                Qt::white, Qt::black, QColor(0x9c, 0xd0, 0xff)};
    if (wishes.hasStrongContrast)
        return {Qt::white, Qt::white, QColor(0xe6, 0xe6, 0xe6), Qt::black, Qt::black,
                Qt::black, Qt::white, QColor(0x00, 0x2f, 0xa7)};
    if (wishes.isDark)
        return {QColor(0x2b, 0x2b, 0x2d),
                QColor(0x1f, 0x1f, 0x21),
                QColor(0x3c, 0x3c, 0x3f),
                QColor(0xf2, 0xf2, 0xf2),
                QColor(0xa6, 0xa6, 0xa8),
                QColor(0x35, 0x6f, 0xc4),
                Qt::white,
                QColor(0x7a, 0xb4, 0xff)};
    return {
        QColor(0xef, 0xef, 0xef), Qt::white, QColor(0xef, 0xef, 0xef), Qt::black, QColor(0x70, 0x70, 0x70),
        QColor(0x30, 0x8c, 0xc6), Qt::white, QColor(0x00, 0x57, 0xae)};
}

} // namespace

QPalette paletteFor(const DesktopWishes& wishes)
{
    const Tones tones = tonesFor(wishes);
    QPalette palette(tones.button, tones.window); // with the shades that frames are drawn in
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, tones.text);
    palette.setColor(QPalette::Base, tones.base);
    palette.setColor(QPalette::AlternateBase, mixed(tones.text, tones.base, 0.05));
    palette.setColor(QPalette::ToolTipBase, tones.button);
    palette.setColor(QPalette::PlaceholderText, tones.hint);
    palette.setColor(QPalette::Highlight, tones.chosen);
    palette.setColor(QPalette::HighlightedText, tones.textOfChosen);
    palette.setColor(QPalette::Link, tones.link);
    const double shareOfDisabled = wishes.hasStrongContrast ? 0.65 : 0.45;
    const QColor disabled = mixed(tones.text, tones.window, shareOfDisabled);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, disabled);
    return palette;
}

DesktopLook::DesktopLook(Colours colours)
    : m_colours(colours)
{
    if (QApplication::isRightToLeft())
        wearStyle();
}

void DesktopLook::follow(const DesktopWishes& wishes)
{
    setStill(wishes.isStill);
    if (m_colours == Colours::ByWishes)
        wearPalette(wishes);
}

void DesktopLook::wearPalette(const DesktopWishes& wishes)
{
    // One that is set would hide the desktop's own.
    QApplication::setPalette(QPalette());
    const bool isDarkAlready = isDark(QApplication::palette().color(QPalette::Window));
    if (wishes.hasStrongContrast || (wishes.isDark && !isDarkAlready))
        QApplication::setPalette(paletteFor(wishes));
}

void DesktopLook::setStill(bool isStill)
{
    if (isStill == m_isStill)
        return;
    m_isStill = isStill;
    wearStyle();
}

void DesktopLook::wearStyle()
{
    if (m_toolkitsStyle.isEmpty())
        m_toolkitsStyle = QApplication::style()->name();
    if (m_isStill || QApplication::isRightToLeft())
        QApplication::setStyle(new WindowStyle(m_toolkitsStyle, m_isStill));
    else
        QApplication::setStyle(QStyleFactory::create(std::exchange(m_toolkitsStyle, {})));
}

} // namespace quindle
