#include "windows/tray/TrayPixmaps.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

namespace quindle {
namespace {

NotifierPixmap square(int side, const QByteArray& pixel)
{
    return {side, side, pixel.repeated(side * side)};
}

TEST(TrayPixmaps, EachSizeIsShownAsItIs)
{
    const QIcon icon =
        iconOf({square(22, QByteArray("\xff\x10\x20\x30", 4)), square(44, QByteArray("\x80\0\0\0", 4))});
    EXPECT_EQ(icon.availableSizes(), (QList<QSize>{{22, 22}, {44, 44}}));
    EXPECT_EQ(icon.pixmap(22).toImage().pixelColor(5, 5), QColor(0x10, 0x20, 0x30));
    EXPECT_EQ(icon.pixmap(44).toImage().pixelColor(5, 5).alpha(), 0x80);
}

TEST(TrayPixmaps, WhatIsNoPictureIsLeftOut)
{
    NotifierPixmap cut = square(22, QByteArray(4, 'x'));
    cut.pixels.chop(1);
    const NotifierPixmap negative{-22, -22, QByteArray(4 * 22 * 22, 'x')};
    const NotifierPixmap huge{1 << 20, 1 << 20, {}};
    EXPECT_TRUE(iconOf({cut, negative, huge, {}}).isNull());
    EXPECT_TRUE(iconOf({}).isNull());
}

} // namespace
} // namespace quindle
