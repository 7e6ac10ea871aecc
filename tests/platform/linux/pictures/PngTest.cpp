#include "platform/linux/pictures/Png.h"

#include <QImage>
#include <gtest/gtest.h>

#include "tests/platform/linux/pictures/PictureImage.h"

namespace quindle {
namespace {

Pixels manyColours(int width, int height)
{
    Pixels pixels = blankPixels(width, height);
    std::uint32_t next = 1;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            next = next * 1664525U + 1013904223U;
            Mask point = blankMask(1, 1);
            point.coverage[0] = 255;
            paintMask(pixels, x, y, point, next);
        }
    }
    return pixels;
}

TEST(Png, AnotherReaderFindsThePicture)
{
    for (const auto& [width, height] : {std::pair{1, 1}, {44, 44}, {300, 42}, {3, 200}}) {
        const Pixels pixels = manyColours(width, height);
        const QImage read = QImage::fromData(pngOf(pixels), "PNG");
        ASSERT_EQ(read.size(), QSize(width, height));
        ASSERT_EQ(read.format(), QImage::Format_ARGB32);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                ASSERT_EQ(read.pixel(x, y), colourAt(pixels, x, y)) << x << ',' << y;
        }
    }
}

TEST(Png, AFaultInTheBytesIsFound)
{
    const QByteArray whole = pngOf(manyColours(22, 22));
    for (const qsizetype place : {qsizetype{20}, qsizetype{30}, whole.size() / 2}) {
        QByteArray broken = whole;
        broken[place] = static_cast<char>(broken[place] ^ 1);
        EXPECT_NE(QImage::fromData(broken, "PNG"), QImage::fromData(whole, "PNG")) << place;
    }
}

TEST(Png, TheSamePictureHasTheSameBytes)
{
    EXPECT_EQ(pngOf(manyColours(44, 44)), pngOf(manyColours(44, 44)));
    EXPECT_NE(pngOf(manyColours(44, 44)), pngOf(manyColours(43, 44)));
}

TEST(Png, AnEmptyPictureIsNone)
{
    EXPECT_EQ(pngOf({}), QByteArray());
}

} // namespace
} // namespace quindle
