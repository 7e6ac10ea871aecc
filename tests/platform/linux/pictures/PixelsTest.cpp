#include "platform/linux/pictures/Pixels.h"

#include <climits>

#include <QColor>
#include <QPainter>
#include <gtest/gtest.h>

#include "tests/platform/linux/pictures/PictureImage.h"

namespace quindle {
namespace {

Mask uniform(int width, int height, std::uint8_t coverage)
{
    Mask mask = blankMask(width, height);
    std::fill(mask.coverage.begin(), mask.coverage.end(), coverage);
    return mask;
}

TEST(Pixels, ColoursAreGivenBackAsTheyWerePainted)
{
    for (const Argb colour : {0xff112233U, 0x80ffffffU, 0xbe181a1eU, 0xffffffffU, 0x00000000U}) {
        Pixels pixels = blankPixels(2, 1);
        paintMask(pixels, 0, 0, uniform(1, 1, 255), colour);
        EXPECT_EQ(colourAt(pixels, 0, 0), colour);
        EXPECT_EQ(colourAt(pixels, 1, 0), 0U);
    }
}

TEST(Pixels, PaintIsBlendedAsQtBlendsIt)
{
    for (const Argb ground : {0U, 0xff20c040U, 0xbe181a1eU}) {
        for (int coverage = 0; coverage <= 255; coverage += 15) {
            constexpr Argb ink = 0xc0f08010;
            Pixels pixels = blankPixels(1, 1);
            paintMask(pixels, 0, 0, uniform(1, 1, 255), ground);
            QImage image = imageOf(pixels);
            paintMask(pixels, 0, 0, uniform(1, 1, static_cast<std::uint8_t>(coverage)), ink);
            QColor colour = QColor::fromRgba(ink);
            colour.setAlphaF(colour.alphaF() * static_cast<float>(coverage) / 255.0F);
            QPainter(&image).fillRect(image.rect(), colour);
            const QColor wanted = image.pixelColor(0, 0);
            const QColor got = QColor::fromRgba(colourAt(pixels, 0, 0));
            EXPECT_NEAR(got.alpha(), wanted.alpha(), 2) << coverage;
            EXPECT_NEAR(got.red() * got.alpha(), wanted.red() * wanted.alpha(), 3 * 255) << coverage;
            EXPECT_NEAR(got.blue() * got.alpha(), wanted.blue() * wanted.alpha(), 3 * 255) << coverage;
        }
    }
}

TEST(Pixels, APictureCoversWhatIsBehindItByItsAlpha)
{
    Pixels top = blankPixels(1, 1);
    paintMask(top, 0, 0, uniform(1, 1, 255), 0x80ff0000);
    Pixels pixels = blankPixels(1, 1);
    paintMask(pixels, 0, 0, uniform(1, 1, 255), 0xff0000ff);
    paintPixels(pixels, 0, 0, top);
    EXPECT_EQ(colourAt(pixels, 0, 0), 0xff80007fU);
}

TEST(Pixels, WhatIsBeyondThePictureIsLeftOut)
{
    struct Row
    {
        int x;
        int y;
        int painted;
    };
    constexpr Row rows[] = {{0, 0, 9},  {-1, -1, 4}, {2, 2, 4},           {3, 3, 1},          {4, 0, 0},
                            {0, -3, 0}, {-3, 0, 0},  {INT_MAX / 2, 0, 0}, {0, INT_MIN / 2, 0}};
    for (const Row& row : rows) {
        Pixels pixels = blankPixels(4, 4);
        paintMask(pixels, row.x, row.y, uniform(3, 3, 255), 0xff000000);
        EXPECT_EQ(std::count(pixels.data.begin(), pixels.data.end(), 0xff000000U), row.painted)
            << row.x << ',' << row.y;
    }
}

TEST(Pixels, WithoutAreaThereIsNothing)
{
    for (const auto& [width, height] : {std::pair{0, 5}, {5, 0}, {-1, -1}}) {
        EXPECT_TRUE(blankPixels(width, height).isEmpty());
        EXPECT_TRUE(blankMask(width, height).isEmpty());
        EXPECT_TRUE(roundedRectangle(width, height, 0, 3.0).isEmpty());
    }
}

TEST(RoundedRectangle, IsTheOneThatQtDraws)
{
    for (const int size : {16, 22, 32, 44, 48}) {
        const int width = 3 * size;
        const int inset = 2 * (size / 22);
        const Mask mask = roundedRectangle(width, size, inset, size / 5.5);
        QImage image(width, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(image.rect().adjusted(0, inset, 0, -inset), size / 5.5, size / 5.5);
        painter.end();
        auto coverage = mask.coverage.begin();
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < width; ++x)
                EXPECT_NEAR(*coverage++, qAlpha(image.pixel(x, y)), 20) << x << ',' << y << " of " << size;
        }
    }
}

TEST(RoundedRectangle, NeverReachesBeyondItsMask)
{
    EXPECT_EQ(roundedRectangle(4, 4, 2, 3.0).coverage, std::vector<std::uint8_t>(16));
    EXPECT_EQ(roundedRectangle(1, 1, 0, 100.0).coverage.size(), 1U);
    EXPECT_EQ(roundedRectangle(3, 2, 9, 1.0).coverage, std::vector<std::uint8_t>(6));
}

} // namespace
} // namespace quindle
