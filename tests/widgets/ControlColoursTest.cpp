#include "widgets/ControlColours.h"

#include <algorithm>
#include <memory>

#include <QCheckBox>
#include <QImage>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyle>
#include <QStyleFactory>
#include <gtest/gtest.h>

#include "tests/support/Texts.h"
#include "widgets/DesktopLook.h"
#include "widgets/PaletteMix.h"

using namespace quindle;

namespace {

QPalette paletteOf(const char* window, const char* base, const char* text)
{
    QPalette palette{QColor(window)};
    palette.setColor(QPalette::Base, QColor(base));
    for (const auto role : {QPalette::Text, QPalette::WindowText})
        palette.setColor(role, QColor(text));
    palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    return palette;
}

const QPalette dark = paletteOf("#2b2f36", "#20242b", "#eef0f3");
const QPalette light = paletteOf("#efefef", "#ffffff", "#000000");

/// The strongest contrast to the background in the half of a box that holds its indicator.
template <typename Box>
double outlineContrast(const QPalette& palette)
{
    QWidget page;
    page.setPalette(palette);
    const std::unique_ptr<QStyle> style(QStyleFactory::create(latin("Fusion")));
    Box box(&page);
    box.setStyle(style.get());
    box.resize(40, 24);
    makeBoxesVisible(page, palette);
    QImage picture(box.size(), QImage::Format_RGB32);
    picture.fill(palette.color(QPalette::Window));
    box.render(&picture, {}, {}, QWidget::DrawChildren);
    double strongest = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width() / 2; ++x)
            strongest =
                std::max(strongest, contrast(picture.pixelColor(x, y), palette.color(QPalette::Window)));
    return strongest;
}

TEST(ControlColours, BoxesThatAreNotTickedCanBeSeenOnDarkPalettes)
{
    EXPECT_GT(outlineContrast<QCheckBox>(dark), 3);
    EXPECT_GT(outlineContrast<QRadioButton>(dark), 3);
}

TEST(ControlColours, WithStrongContrastFieldsHaveEdgesToo)
{
    for (const bool isOnDark : {false, true}) {
        const QPalette strong = paletteFor({.isDark = isOnDark, .hasStrongContrast = true});
        EXPECT_GT(outlineContrast<QCheckBox>(strong), 3) << isOnDark;
        EXPECT_GT(outlineContrast<QLineEdit>(strong), 3) << isOnDark;
    }
}

TEST(ControlColours, OnLightPalettesTheStylesOwnStays)
{
    EXPECT_FALSE(outlineSource(light).isValid());
    EXPECT_EQ(hintColour(light), light.color(QPalette::PlaceholderText));
}

TEST(ControlColours, AHintCanBeReadOnDarkPalettes)
{
    const QColor base = dark.color(QPalette::Base);
    EXPECT_GE(contrast(hintColour(dark), base), 4.5);
    QPalette good = dark;
    good.setColor(QPalette::PlaceholderText, QColor("#a0a5ad"));
    EXPECT_EQ(hintColour(good), QColor("#a0a5ad")) << "the desktop's own where it can be read";
}

} // namespace
