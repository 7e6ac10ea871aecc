#pragma once

#include <QPalette>

namespace quindle::test {

inline QPalette paletteOf(const QColor& text, const QColor& base, const QColor& window)
{
    QPalette palette(window);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(role, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x74, 0xd0));
    return palette;
}

inline QPalette lightPalette()
{
    return paletteOf(QColor(0x1d, 0x20, 0x26), QColor(0xfc, 0xfc, 0xfc), QColor(0xef, 0xf0, 0xf1));
}

inline QPalette darkPalette()
{
    return paletteOf(QColor(0xec, 0xee, 0xf0), QColor(0x2b, 0x2e, 0x35), QColor(0x31, 0x36, 0x3b));
}

} // namespace quindle::test
