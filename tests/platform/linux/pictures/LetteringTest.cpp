#include "platform/linux/pictures/Lettering.h"

#include <cmath>
#include <numeric>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/platform/linux/pictures/PictureImage.h"

namespace quindle {
namespace {

constexpr Argb black = 0xff000000;

class LetteringTest : public testing::Test
{
protected:
    LetteringTest() { lettering.setFamily(QStringLiteral("DejaVu Sans")); }

    TextLine line(const char* text, int size = 20) { return lettering.line(QString::fromUtf8(text), size); }

    Pixels picture(const TextLine& drawn)
    {
        const int side = drawn.pixelSize;
        Pixels pixels = blankPixels(static_cast<int>(std::ceil(drawn.advance)) + side, 3 * side);
        lettering.paint(pixels, side / 2, 2 * side, drawn, black);
        return pixels;
    }

    Pixels picture(const char* text, int size = 20) { return picture(line(text, size)); }

    /// The numbers of the fonts that the text is written in.
    std::vector<std::size_t> fonts(const char* text)
    {
        std::vector<std::size_t> numbers;
        for (const PlacedGlyph& glyph : line(text).glyphs)
            numbers.push_back(glyph.font);
        return numbers;
    }

    Lettering lettering;
};

TEST_F(LetteringTest, DigitsStandOnTheBaselineAsHighAsCapitals)
{
    for (const int size : {13, 16, 20, 25, 40}) {
        const QRect box = inkBox(picture("1471", size), 128);
        EXPECT_EQ(box.bottom(), 2 * size - 1) << size;
        EXPECT_NEAR(box.height(), lettering.capHeight(size), 1.0) << size;
    }
}

TEST_F(LetteringTest, InkIsWhereItWasMeasured)
{
    for (const char* text : {"87", "100", "-5", "%", "j_"}) {
        const TextLine drawn = line(text, 40);
        const QRectF measured = lettering.inkOf(drawn).translated(20, 80);
        const QRectF inked = inkBox(picture(drawn));
        EXPECT_NEAR(inked.left(), measured.left(), 1.5) << text;
        EXPECT_NEAR(inked.right(), measured.right(), 1.5) << text;
        EXPECT_NEAR(inked.top(), measured.top(), 1.5) << text;
        EXPECT_NEAR(inked.bottom(), measured.bottom(), 1.5) << text;
    }
}

TEST_F(LetteringTest, HorizontalStrokesAreSharp)
{
    for (const int size : {13, 16, 20, 25, 29}) {
        const Pixels pixels = picture("E", size);
        const QRect box = inkBox(pixels);
        int between = 0;
        for (int y = box.top(); y <= box.bottom(); ++y) {
            const std::uint32_t alpha = alphaOf(colourAt(pixels, box.center().x(), y));
            between += alpha > 30 && alpha < 225 ? 1 : 0;
        }
        EXPECT_EQ(alphaOf(colourAt(pixels, box.center().x(), 2 * size - 1)), 255U) << "the foot of " << size;
        EXPECT_LE(between, 3) << "one side of each stroke of " << size;
    }
}

TEST_F(LetteringTest, PairsAreKerned)
{
    for (const char* family : {"DejaVu Sans", "Noto Sans"}) {
        lettering.setFamily(QString::fromLatin1(family));
        const auto alone = [this](const char* letters) {
            double sum = 0.0;
            for (const QChar letter : QString::fromLatin1(letters))
                sum += lettering.line(letter, 100).advance;
            return sum;
        };
        EXPECT_LT(line("AVAT", 100).advance, alone("AVAT") - 10) << family;
        EXPECT_DOUBLE_EQ(line("100", 100).advance, alone("100")) << family;
    }
}

TEST_F(LetteringTest, KerningIsTheOneThatShapingFinds)
{
    for (const char* family : {"DejaVu Sans", "Noto Sans"}) {
        lettering.setFamily(QString::fromLatin1(family));
        for (const char* text : {"AVATAR To Te", "W. 87% Ty", "LT V, P. r, y. F."}) {
            // Something that is written from right to left, so that the text is shaped; it has no width.
            const TextLine shaped = lettering.line(QString::fromUtf8(text) + QChar(0x2067), 100);
            EXPECT_NEAR(line(text, 100).advance, shaped.advance, 0.5) << text << " in " << family;
        }
    }
}

TEST_F(LetteringTest, TheSameTextIsTheSamePicture)
{
    const Pixels first = picture("87.0% 3:21");
    lettering.rest();
    EXPECT_EQ(picture("87.0% 3:21"), first);
    EXPECT_NE(picture("87.0% 3:22"), first);
    Lettering other;
    other.setFamily(QStringLiteral("DejaVu Sans"));
    Pixels pixels = blankPixels(first.width, first.height);
    other.paint(pixels, 10, 40, other.line(QStringLiteral("87.0% 3:21"), 20), black);
    EXPECT_EQ(pixels, first);
}

TEST_F(LetteringTest, AnotherFamilyIsAnotherPicture)
{
    const Pixels first = picture("87");
    lettering.setFamily(QStringLiteral("Noto Sans"));
    EXPECT_NE(picture("87"), first);
    lettering.setFamily(QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(picture("87"), first);
}

TEST_F(LetteringTest, WhatTheFamilyLacksIsWrittenInAnotherFont)
{
    lettering.setFamily(QStringLiteral("Noto Sans"));
    EXPECT_EQ(fonts("8\u26a17"), (std::vector<std::size_t>{0, 1, 0}));
    EXPECT_NE(line("\u26a1").glyphs.at(0).glyph, 0U);
    const Pixels flash = picture("\u26a1");
    EXPECT_FALSE(inkBox(flash).isEmpty());
    const Pixels missing = picture("\U0010fffd");
    EXPECT_FALSE(inkBox(missing).isEmpty()) << "the sign for a missing character";
    EXPECT_NE(flash, missing);
}

TEST_F(LetteringTest, ArabicJoinsAndRunsFromRightToLeft)
{
    const TextLine word = line("ببب");
    double alone = 0.0;
    for (int i = 0; i < 3; ++i)
        alone += line("ب").advance;
    ASSERT_EQ(word.glyphs.size(), 3U);
    EXPECT_LT(word.advance, alone);
    const TextLine mixed = line("ب 8");
    ASSERT_EQ(mixed.glyphs.size(), 3U);
    EXPECT_EQ(mixed.glyphs.at(0).glyph, line("8").glyphs.at(0).glyph);
    EXPECT_EQ(mixed.glyphs.at(2).glyph, line("ب").glyphs.at(0).glyph);
    EXPECT_GT(mixed.glyphs.at(2).pen.x(), mixed.glyphs.at(0).pen.x());
    EXPECT_FALSE(inkBox(picture(word)).isEmpty());
}

// The family has the joiner, and the letters are of another font.
TEST_F(LetteringTest, AJoinerIsWrittenInTheFontOfWhatItJoins)
{
    const std::vector<std::size_t> numbers = fonts("क्\u200dष");
    EXPECT_EQ(numbers, std::vector<std::size_t>(numbers.size(), fonts("ष").at(0)));
}

TEST_F(LetteringTest, AccentsStandOnTheirLetters)
{
    const QRect plain = inkBox(picture("x", 40));
    const QRect accented = inkBox(picture("x\u0301", 40));
    EXPECT_LT(accented.top(), plain.top() - 5);
    EXPECT_NEAR(accented.center().x(), plain.center().x(), 4);
    EXPECT_NEAR(line("x\u0301", 40).advance, line("x", 40).advance, 1);
}

TEST_F(LetteringTest, AnyTextInAnySizeIsDrawn)
{
    std::u32string all;
    for (char32_t c = 1; c < 0x30000; c += 1009)
        all.push_back(c);
    const QStringList texts{QString(),
                            QString::fromUcs4(all.data(), static_cast<qsizetype>(all.size())),
                            QString(300, u'W'),
                            QString(100'000, QChar(0x301)),
                            QString(1000, QChar(0x202e)),
                            QString(QChar(0xd83d)),
                            QString::fromUtf8("\u202e\u2067مرحبا\u2069 x\u0301\u0301\u0301"),
                            QStringLiteral("\x01\x1b[0m\x7f\n\t")};
    for (const QString& text : texts) {
        for (const int size : {1, 13}) {
            const TextLine drawn = lettering.line(text, size);
            EXPECT_TRUE(drawn.advance >= 0.0 && drawn.advance <= 100'000.0);
            Pixels pixels = blankPixels(50, 20);
            lettering.paint(pixels, 3, 15, drawn, black);
        }
    }
    EXPECT_GT(lettering.line(QStringLiteral("87"), 1000).advance, 1000.0);
    for (const int size : {0, -5, 1001, 1'000'000})
        EXPECT_EQ(lettering.line(QStringLiteral("87"), size).advance, 0.0) << size;
}

TEST_F(LetteringTest, GlyphsOfManyTextsAreNotAllKept)
{
    const Pixels first = picture("87");
    for (char32_t c = 0x20; c < 0x2000; c += 7)
        picture(QString::fromUcs4(&c, 1).toUtf8().constData(), 8);
    EXPECT_EQ(picture("87"), first);
}

/// A place without the system's fonts, with only those that are put there.
class FontFolder
{
public:
    FontFolder()
    {
        QFile file(m_folder.filePath(QStringLiteral("fonts.conf")));
        const QByteArray path = m_folder.path().toUtf8();
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<fontconfig><dir>" + path + "</dir><cachedir>" + path + "</cachedir></fontconfig>");
        qputenv("FONTCONFIG_FILE", file.fileName().toUtf8());
    }

    ~FontFolder() { qunsetenv("FONTCONFIG_FILE"); }

    QString filePath(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

private:
    QTemporaryDir m_folder;
};

TEST(LetteringWithoutFonts, NothingIsWritten)
{
    const FontFolder empty;
    Lettering lettering;
    for (const char* text : {"87", "مرحبا", "\u26a1"}) {
        const TextLine line = lettering.line(QString::fromUtf8(text), 20);
        EXPECT_EQ(line.advance, 0.0);
        Pixels pixels = blankPixels(20, 20);
        lettering.paint(pixels, 3, 15, line, black);
        EXPECT_EQ(pixels, blankPixels(20, 20));
        EXPECT_TRUE(lettering.inkOf(line).isNull());
    }
    EXPECT_EQ(lettering.capHeight(20), 0.0);
}

TEST(LetteringWithBrokenFonts, WhatIsLeftIsUsed)
{
    const QString path = QString::fromUtf8(FontChoice().font(QStringLiteral("DejaVu Sans"))->path);
    const FontFolder folder;
    const QString copy = folder.filePath("font.ttf");
    ASSERT_TRUE(QFile::copy(path, copy));
    Lettering lettering;
    lettering.setFamily(QStringLiteral("DejaVu Sans"));
    const double advance = lettering.line(QStringLiteral("8"), 20).advance;
    EXPECT_GT(advance, 5.0);
    lettering.rest();
    QFile file(copy);
    ASSERT_TRUE(file.remove());
    EXPECT_EQ(lettering.line(QStringLiteral("8"), 20).advance, advance) << "kept";
    testing::internal::CaptureStderr();
    EXPECT_EQ(lettering.line(QStringLiteral("7"), 20).advance, 0.0) << "the file is gone";
    EXPECT_EQ(lettering.line(QStringLiteral("شلا"), 20).advance, 0.0);
    const QByteArray log = QByteArray::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_EQ(log.count("font.ttf"), 1) << log.constData();
    EXPECT_FALSE(lettering.rest());
    ASSERT_TRUE(QFile::copy(path, copy));
    lettering.setFamily(QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(lettering.line(QStringLiteral("7"), 20).advance, advance) << "and it is back";
    EXPECT_TRUE(lettering.rest());
}

} // namespace
} // namespace quindle
