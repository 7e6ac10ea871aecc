#include "platform/linux/pictures/FontFace.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/linux/pictures/GlyphBitmap.h"
#include "tests/platform/linux/pictures/PictureImage.h"

namespace quindle {
namespace {

FontFile dejaVu()
{
    return FontChoice().font(QStringLiteral("DejaVu Sans")).value();
}

class FontFaceTest : public testing::Test
{
protected:
    std::unique_ptr<FontFace> opened(const FontFile& file, int pixelSize = 20)
    {
        auto face = FontFace::open(library, file);
        return face && face->setPixelSize(pixelSize) ? std::move(face) : nullptr;
    }

    std::shared_ptr<FT_LibraryRec_> library = fontLibrary();
};

TEST_F(FontFaceTest, FiguresAreThoseOfTheFont)
{
    const auto face = opened(dejaVu(), 100);
    ASSERT_TRUE(face);
    const std::uint32_t letter = face->glyphOf(U'H');
    EXPECT_NE(letter, 0U);
    EXPECT_EQ(face->glyphOf(U'\U0010fffe'), 0U);
    EXPECT_NEAR(face->advanceOf(letter), 83.7, 0.1); // 1714 of 2048 units
    EXPECT_NEAR(face->capHeight(), 72.9, 0.1);
    EXPECT_NEAR(-face->boxOf(letter).top(), 73.0, 1.0);
    EXPECT_TRUE(face->boxOf(face->glyphOf(U' ')).isEmpty());
}

TEST_F(FontFaceTest, SizesAreWithinReason)
{
    const auto face = opened(dejaVu());
    ASSERT_TRUE(face);
    for (const int size : {0, -1, 1001, 1'000'000})
        EXPECT_FALSE(face->setPixelSize(size)) << size;
    EXPECT_TRUE(face->setPixelSize(1));
    EXPECT_TRUE(face->setPixelSize(1000));
}

TEST_F(FontFaceTest, LinesAreSharpAsTheSettingsWantThem)
{
    FontFile file = dejaVu();
    for (const auto hinting : {FontFile::Hinting::None, FontFile::Hinting::Slight, FontFile::Hinting::Full}) {
        file.hinting = hinting;
        const auto face = opened(file, 17);
        ASSERT_TRUE(face);
        const auto glyph = face->draw(face->glyphOf(U'E'), 0.0);
        ASSERT_TRUE(glyph && !glyph->shape.isEmpty());
        // The foot of an E is a straight line on the baseline.
        const std::size_t row = static_cast<std::size_t>(glyph->shape.height) - 1;
        const std::size_t middle = row * static_cast<std::size_t>(glyph->shape.width) +
                                   static_cast<std::size_t>(glyph->shape.width) / 2;
        EXPECT_EQ(glyph->top, glyph->shape.height) << "stands on the baseline";
        EXPECT_EQ(glyph->shape.coverage[middle], 255);
        EXPECT_EQ(face->hasFractions(), hinting != FontFile::Hinting::Full);
        const double advance = face->advanceOf(face->glyphOf(U'E'));
        EXPECT_EQ(advance == std::round(advance), hinting == FontFile::Hinting::Full) << advance;
    }
}

TEST_F(FontFaceTest, WithoutSmoothingPixelsAreInkOrNot)
{
    FontFile file = dejaVu();
    file.isAntialiased = false;
    const auto face = opened(file);
    ASSERT_TRUE(face);
    const auto glyph = face->draw(face->glyphOf(U'8'), 0.0);
    ASSERT_TRUE(glyph && !glyph->shape.isEmpty());
    for (const std::uint8_t coverage : glyph->shape.coverage)
        EXPECT_TRUE(coverage == 0 || coverage == 255);
}

TEST_F(FontFaceTest, AFractionMovesTheGlyphByLessThanAPixel)
{
    const auto face = opened(dejaVu());
    ASSERT_TRUE(face);
    const auto weight = [](const DrawnGlyph& glyph) {
        double sum = 0.0;
        double total = 0.0;
        for (std::size_t i = 0; i < glyph.shape.coverage.size(); ++i) {
            const double x =
                glyph.left + static_cast<double>(i % static_cast<std::size_t>(glyph.shape.width));
            sum += x * glyph.shape.coverage[i];
            total += glyph.shape.coverage[i];
        }
        return sum / total;
    };
    const std::uint32_t digit = face->glyphOf(U'8');
    EXPECT_NEAR(weight(*face->draw(digit, 0.5)) - weight(*face->draw(digit, 0.0)), 0.5, 0.03);
}

TEST_F(FontFaceTest, KerningIsThatOfTheFontsTables)
{
    for (const char* family : {"DejaVu Sans", "Noto Sans"}) {
        const auto face = opened(FontChoice().font(QString::fromLatin1(family)).value(), 100);
        ASSERT_TRUE(face);
        EXPECT_LT(face->kerningOf(face->glyphOf(U'A'), face->glyphOf(U'V')), -2.0) << family;
        EXPECT_EQ(face->kerningOf(face->glyphOf(U'1'), face->glyphOf(U'2')), 0.0) << family;
        EXPECT_EQ(face->kerningOf(1'000'000, 2'000'000), 0.0) << family;
    }
}

TEST_F(FontFaceTest, AnEmboldenedFontHasMoreInk)
{
    FontFile file = dejaVu();
    const auto inkIn = [this](const FontFile& font) {
        const auto glyph = opened(font)->draw(FontFace::open(library, font)->glyphOf(U'8'), 0.0);
        int sum = 0;
        for (const std::uint8_t coverage : glyph->shape.coverage)
            sum += coverage;
        return sum;
    };
    const int usual = inkIn(file);
    file.isEmboldened = true;
    EXPECT_GT(inkIn(file), usual * 11 / 10);
}

TEST_F(FontFaceTest, UnknownVariationsAreNone)
{
    FontFile file = dejaVu();
    for (const char* variations : {"wght=600", "", "=", ",,,", "wght", "wght=x,wdth=1e999", "abcd=12"}) {
        file.variations = variations;
        EXPECT_TRUE(opened(file)) << variations;
    }
}

TEST_F(FontFaceTest, WhatIsNoFontIsNone)
{
    for (const char* path : {"", "/", "/nonexistent", "/dev/null", "/proc/self/exe"}) {
        FontFile file;
        file.path = path;
        EXPECT_FALSE(opened(file)) << path;
    }
    FontFile file = dejaVu();
    file.index = 99;
    EXPECT_FALSE(opened(file));
    EXPECT_FALSE(FontFace::open({}, dejaVu()));
}

TEST_F(FontFaceTest, ABrokenFontGivesSensibleFigures)
{
    QFile whole(QString::fromUtf8(dejaVu().path));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    const QTemporaryDir folder;
    FontFile file = dejaVu();
    file.path = (folder.path() + QStringLiteral("/broken.ttf")).toUtf8();
    std::uint32_t next = 1;
    for (int round = 0; round < 40; ++round) {
        QByteArray broken = bytes.left(bytes.size() * (round % 4 + 1) / 4);
        for (int i = 0; i < 400; ++i) {
            next = next * 1664525U + 1013904223U;
            // The first bytes say where all tables are.
            const qsizetype reach = i % 8 == 0 ? 300 : broken.size();
            broken[static_cast<qsizetype>(next >> 8U) % reach] = static_cast<char>(next);
        }
        QFile to(QString::fromUtf8(file.path));
        ASSERT_TRUE(to.open(QIODevice::WriteOnly) && to.write(broken) == broken.size());
        to.close();
        const auto face = opened(file);
        if (!face)
            continue;
        EXPECT_LE(face->capHeight(), 40.0);
        for (const char32_t c : U"87%AV:") {
            const std::uint32_t glyph = face->glyphOf(c);
            EXPECT_LE(face->advanceOf(glyph), 160.0);
            EXPECT_LE(std::abs(face->kerningOf(glyph, face->glyphOf(U'V'))), 20.0);
            EXPECT_LE(face->boxOf(glyph).width(), 320.0);
            std::vector<OutlineStep> outline;
            face->addOutline(glyph, {}, outline);
            const auto drawn = face->draw(glyph, 0.25);
            EXPECT_LE(drawn ? drawn->shape.width : 0, 400);
        }
    }
}

TEST(Resized, EachPixelIsTheMeanOfWhatItCovers)
{
    Pixels pixels = blankPixels(4, 2);
    pixels.data = {0xff000000, 0xff000000, 0x00000000, 0xff0000ff,
                   0xff000000, 0xff000000, 0x00000000, 0xff0000ff};
    const Pixels half = resized(pixels, 2, 1);
    EXPECT_EQ(half.data, (std::vector<std::uint32_t>{0xff000000, 0x80000080}));
    EXPECT_EQ(resized(pixels, 4, 2), pixels);
    EXPECT_EQ(resized(half, 4, 2).data,
              (std::vector<std::uint32_t>{0xff000000, 0xff000000, 0x80000080, 0x80000080, 0xff000000,
                                          0xff000000, 0x80000080, 0x80000080}));
    EXPECT_TRUE(resized(pixels, 0, 3).isEmpty());
    EXPECT_TRUE(resized({}, 3, 3).isEmpty());
}

} // namespace
} // namespace quindle
