#include "platform/linux/pictures/Shaping.h"

#include <gtest/gtest.h>

#include "platform/linux/pictures/FontFace.h"

namespace quindle {
namespace {

class ShapingTest : public testing::Test
{
protected:
    ShapingTest() { face->setPixelSize(20); }

    std::vector<ShapedGlyph> shaped(std::u32string_view text)
    {
        return shaping.shape(text, {{face->face(), 0, text.size()}}, face->measuringFlags()).value();
    }

    std::unique_ptr<FontFace> face =
        FontFace::open(fontLibrary(), FontChoice().font(QStringLiteral("DejaVu Sans"), U'ب').value());
    Shaping shaping;
};

TEST_F(ShapingTest, LettersThatJoinHaveOtherGlyphsThanAlone)
{
    const std::vector<ShapedGlyph> glyphs = shaped(U"ببب");
    ASSERT_EQ(glyphs.size(), 3U);
    const std::uint32_t alone = face->glyphOf(U'ب');
    for (const ShapedGlyph& glyph : glyphs)
        EXPECT_NE(glyph.glyph, alone);
    EXPECT_NE(glyphs[0].glyph, glyphs[1].glyph);
    EXPECT_NE(glyphs[1].glyph, glyphs[2].glyph);
    EXPECT_EQ(shaped(U"ب").at(0).glyph, alone);
}

TEST_F(ShapingTest, RightToLeftTextEndsOnTheLeft)
{
    const std::vector<ShapedGlyph> glyphs = shaped(U"אב 12");
    ASSERT_EQ(glyphs.size(), 5U);
    EXPECT_EQ(glyphs[0].glyph, face->glyphOf(U'1'));
    EXPECT_EQ(glyphs[1].glyph, face->glyphOf(U'2'));
    EXPECT_EQ(glyphs[3].glyph, face->glyphOf(U'ב'));
    EXPECT_EQ(glyphs[4].glyph, face->glyphOf(U'א'));
}

TEST_F(ShapingTest, AdvancesAreThoseOfTheFont)
{
    const std::vector<ShapedGlyph> glyphs = shaped(U"8");
    EXPECT_NEAR(glyphs.at(0).advance, face->advanceOf(face->glyphOf(U'8')), 0.02);
}

TEST_F(ShapingTest, WithoutTheLibraryNothingIsShapedAndOneLineSaysSo)
{
    for (const char* missing : {"libno-such-library.so.0", "libc.so.6"}) { // the second lacks the functions
        Shaping without(missing);
        testing::internal::CaptureStderr();
        for (int times = 0; times < 3; ++times)
            EXPECT_FALSE(without.shape(U"ببب", {{face->face(), 0, 3}}, face->measuringFlags()));
        const std::string log = testing::internal::GetCapturedStderr();
        const std::size_t said = log.find(missing);
        EXPECT_NE(said, std::string::npos);
        EXPECT_EQ(log.find(missing, said + 1), std::string::npos) << log;
    }
}

TEST_F(ShapingTest, NoTextIsNoGlyphs)
{
    EXPECT_FALSE(shaping.shape({}, {}, 0));
}

} // namespace
} // namespace quindle
