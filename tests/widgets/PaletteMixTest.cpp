#include "widgets/PaletteMix.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace {

QPalette paletteOf(const QColor& window, const QColor& base, const QColor& text)
{
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::WindowText, text);
    return palette;
}

TEST(WindowColours, PanesStandOnTheLighterOfBoth)
{
    EXPECT_EQ(contentRole(paletteOf(QColor(239, 239, 239), Qt::white, Qt::black)), QPalette::Base);
    EXPECT_EQ(contentRole(paletteOf(QColor(43, 47, 54), QColor(32, 36, 43), Qt::white)), QPalette::Window);
    EXPECT_EQ(contentRole(paletteOf(Qt::black, Qt::black, Qt::white)), QPalette::Base);
}

TEST(WindowColours, AToolbarStandsOutUnlessItIsTransparent)
{
    const QPalette light = paletteOf(QColor(239, 239, 239), Qt::white, Qt::black);
    EXPECT_EQ(toolbarColour(light, false), QColor(239, 239, 239));
    EXPECT_EQ(toolbarColour(light, true), QColor(Qt::white));
    const QPalette dark = paletteOf(QColor(40, 40, 40), QColor(20, 20, 20), QColor(240, 240, 240));
    EXPECT_EQ(toolbarColour(dark, false), QColor(50, 50, 50));
    EXPECT_EQ(toolbarColour(dark, true), QColor(40, 40, 40));
}

} // namespace
