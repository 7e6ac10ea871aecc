#include "platform/linux/statusitem/StatusPictures.h"

#include <algorithm>

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

#include "platform/linux/statusitem/NotifierItemAdaptor.h"
#include "tests/platform/linux/pictures/PictureImage.h"
#include "tests/support/QtPrinters.h"

namespace quindle {
namespace {

const QStringList& names()
{
    static const QStringList all{QStringLiteral("#bat04"),       QStringLiteral("#bat14"),
                                 QStringLiteral("#bat24"),       QStringLiteral("#bat34"),
                                 QStringLiteral("#bat44"),       QStringLiteral("#bat04Charge"),
                                 QStringLiteral("#bat44Charge"), QStringLiteral("AppIconBW")};
    return all;
}

Picture iconPicture(const QString& name)
{
    return {Picture::Kind::Icon, name, {}, 0.0, 0};
}

Picture text(const char* digits)
{
    return {Picture::Kind::Text, {}, QString::fromUtf8(digits), 0.0, 0};
}

Picture wide(const QString& image, const QString& title)
{
    return {Picture::Kind::Wide, image, title, 12.0, 0};
}

/// Without a plate.
Picture onDark(const char* digits)
{
    Picture picture = text(digits);
    picture.ink = opaqueColour(255, 255, 255);
    return picture;
}

QRect inkOf(const QImage& image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ink |= image.pixelColor(x, y).alpha() > 64 ? QRect(x, y, 1, 1) : QRect();
    return ink;
}

int lightPixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            count += colour.alpha() > 200 && colour.lightness() > 200 ? 1 : 0;
        }
    }
    return count;
}

class StatusPicturesTest : public testing::Test
{
protected:
    QImage drawn(const Picture& picture, int size) { return imageOf(pictures.image(picture, size)); }

    std::vector<QImage> allDrawn(const Picture& picture)
    {
        std::vector<QImage> made;
        for (const Pixels& pixels : pictures.images(picture))
            made.push_back(imageOf(pixels));
        return made;
    }

    StatusPictures pictures{QStringLiteral(QUINDLE_RESOURCES)};
};

TEST_F(StatusPicturesTest, everyImageHasThreeSquares)
{
    for (const QString& name : names()) {
        const auto images = allDrawn(iconPicture(name));
        ASSERT_EQ(images.size(), 3U) << name.toStdString();
        EXPECT_EQ(images[0].size(), QSize(22, 22));
        EXPECT_EQ(images[1].size(), QSize(32, 32));
        EXPECT_EQ(images[2].size(), QSize(44, 44));
        EXPECT_GT(lightPixels(images[0]), 30) << name.toStdString();
    }
}

TEST_F(StatusPicturesTest, fullerBatteriesAreVisiblyFuller)
{
    for (const int size : {16, 22, 32, 44, 48}) {
        int last = 0;
        for (const QString& name : names().mid(0, 5)) {
            const int now = lightPixels(drawn(iconPicture(name), size));
            EXPECT_GT(now, last + 2 * size / 3) << name.toStdString();
            last = now;
        }
    }
}

TEST_F(StatusPicturesTest, glyphsAreOnThePixelGrid)
{
    const QImage full = drawn(iconPicture(names()[4]), 22);
    EXPECT_EQ(full.pixelColor(10, 5), QColor(255, 255, 255));
    EXPECT_EQ(full.pixelColor(10, 7), QColor(255, 255, 255));
    EXPECT_LT(full.pixelColor(10, 6).lightness(), 60);
    EXPECT_LT(full.pixelColor(10, 3).lightness(), 60);
    EXPECT_EQ(full.pixelColor(10, 1).alpha(), 0);
}

TEST_F(StatusPicturesTest, sizesALittleAboveTheGridsHaveSharpLines)
{
    Picture picture = iconPicture(names()[4]);
    picture.ink = opaqueColour(0, 0, 0);
    for (const int size : {16, 18, 22, 24, 44, 48}) {
        const QImage image = drawn(picture, size);
        for (int y = 0; y < size; ++y) {
            const int alpha = image.pixelColor(size / 2, y).alpha();
            EXPECT_TRUE(alpha == 0 || alpha == 255) << size << " at " << y;
        }
    }
}

/// How light the picture is at a place of the grid on a panel of that colour.
int lightness(const QImage& picture, QPoint place, const QColor& panel)
{
    QImage seen(picture.size(), QImage::Format_RGB32);
    seen.fill(panel);
    QPainter(&seen).drawImage(0, 0, picture);
    return seen.pixelColor(place * picture.width() / 22).lightness();
}

TEST_F(StatusPicturesTest, theLevelStandsOutOnEveryPanel)
{
    const QPoint inLevel(8, 11);
    const QPoint inOutline(10, 5);
    const QPoint beside(10, 3);
    for (const int size : {22, 32, 44}) {
        for (const char* panel : {"#000000", "#222222", "#4a6a8a", "#f6f5f4", "#ffffff"}) {
            const QColor colour(QString::fromLatin1(panel));
            const QImage empty = drawn(iconPicture(names()[0]), size);
            const QImage full = drawn(iconPicture(names()[4]), size);
            EXPECT_GT(lightness(full, inLevel, colour), lightness(empty, inLevel, colour) + 120)
                << panel << " at " << size;
            EXPECT_GT(lightness(full, inLevel, colour), lightness(full, beside, colour) + 120)
                << panel << " at " << size;
            EXPECT_NEAR(lightness(full, inLevel, colour), 255, 1);
            if (size == 32) // lines fall between pixels
                continue;
            EXPECT_NEAR(lightness(full, inOutline, colour), 255, 1);
        }
    }
}

TEST_F(StatusPicturesTest, aKnownTextColourNeedsNoPlate)
{
    constexpr Argb ink = opaqueColour(0x2e, 0x34, 0x36);
    Picture icon = iconPicture(names()[4]);
    Picture number = text("87");
    Picture title = wide(names()[4], QStringLiteral("87%"));
    for (Picture* picture : {&icon, &number, &title}) {
        picture->ink = ink;
        int inked = 0;
        const QImage image = drawn(*picture, 44);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                EXPECT_LT(colour.alpha() > 128 ? colour.lightness() : 0, 80) << "only ink";
                inked += colour.rgb() == ink ? 1 : 0;
            }
        }
        EXPECT_GT(inked, 100);
        EXPECT_EQ(image.pixelColor(3, 5).alpha(), 0) << "no plate";
    }
    EXPECT_NE(pictures.file(icon), pictures.file(iconPicture(names()[4])));
    QFile::remove(pictures.file(icon));
    QFile::remove(pictures.file(iconPicture(names()[4])));
}

TEST_F(StatusPicturesTest, anAlarmingPictureIsRedOnEveryPanel)
{
    const auto isRed = [](const QColor& colour) { return colour.red() > colour.blue() + 90; };
    for (const Argb ink : {Argb{0}, opaqueColour(0x20, 0x20, 0x20), opaqueColour(0xee, 0xee, 0xee)}) {
        Picture alarming = iconPicture(names()[4]);
        alarming.ink = ink;
        alarming.isAlarming = true;
        const QImage image = drawn(alarming, 44);
        int red = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                red += image.pixelColor(x, y).alpha() > 200 && isRed(image.pixelColor(x, y)) ? 1 : 0;
        EXPECT_GT(red, 100) << ink;
    }
}

TEST_F(StatusPicturesTest, imageWithoutFileGivesNothing)
{
    EXPECT_TRUE(drawn(iconPicture(QStringLiteral("none")), 22).isNull());
    EXPECT_TRUE(allDrawn(iconPicture(QStringLiteral("none"))).empty());
}

TEST_F(StatusPicturesTest, numberFillsTheSquare)
{
    for (const char* number : {"7", "87", "100"}) {
        for (const QImage& image : allDrawn(text(number))) {
            EXPECT_EQ(image.width(), image.height());
            EXPECT_GT(lightPixels(image), image.width()) << number << " in " << image.width();
        }
    }
}

TEST_F(StatusPicturesTest, hundredIsAsLargeAsTwoFigures)
{
    for (const int size : {16, 22, 24, 32, 44}) {
        const QRect two = inkOf(drawn(onDark("93"), size));
        const QRect three = inkOf(drawn(onDark("100"), size));
        EXPECT_NEAR(three.height(), two.height(), size / 22) << size;
        EXPECT_NEAR(three.center().y(), two.center().y(), 1) << size;
        EXPECT_GE(three.left(), 0) << size;
        EXPECT_GE(three.width(), size * 18 / 22) << size;
        EXPECT_LE(three.width(), size * 20 / 22 + 1) << size;
    }
}

TEST_F(StatusPicturesTest, theNumberOnPowerHasABoltBelow)
{
    for (const char* number : {"7", "87", "100"}) {
        for (const int size : {16, 22, 24, 32, 44}) {
            Picture picture = onDark(number);
            const int alone = inkOf(drawn(picture, size)).height();
            picture.hasBolt = true;
            const QImage image = drawn(picture, size);
            const QRect ink = inkOf(image);
            EXPECT_LE(ink.bottom(), size - 1) << number << ' ' << size;
            EXPECT_GE(ink.top(), 0) << number << ' ' << size;
            const bool hasToMakeRoom = number[1] == 0;
            EXPECT_GE(ink.height(), hasToMakeRoom ? alone : alone + size / 6) << number << ' ' << size;
            // Where the bolt is: in the middle of the lowest part, and nothing at its sides.
            const QRect bolt = inkOf(image.copy(0, size - size / 4, size, size / 4));
            EXPECT_NEAR(bolt.center().x(), size / 2, 1 + size / 22) << number << ' ' << size;
            EXPECT_LE(bolt.width(), size / 3) << number << ' ' << size;
        }
    }
}

TEST_F(StatusPicturesTest, thePlateIsUnderTheBoltToo)
{
    Picture picture = text("87");
    picture.hasBolt = true;
    const QImage image = drawn(picture, 22);
    EXPECT_LT(image.pixelColor(4, 20).lightness(), 60);
    EXPECT_GT(image.pixelColor(4, 20).alpha(), 128);
}

TEST_F(StatusPicturesTest, widePictureGrowsWithTheTitleWithinBounds)
{
    const auto width = [this](const QString& image, const QString& title) {
        const auto images = allDrawn(wide(image, title));
        EXPECT_EQ(images.size(), 1U);
        EXPECT_EQ(images.at(0).height(), 42);
        return images.at(0).width();
    };
    const int shortWidth = width({}, QStringLiteral("87%"));
    EXPECT_GT(width({}, QStringLiteral("87.0% 3:21")), shortWidth);
    EXPECT_GE(width(names()[0], QStringLiteral("87%")), shortWidth + 40);
    EXPECT_LE(width(names()[0], QString(10000, QLatin1Char('W'))), 800);
}

TEST_F(StatusPicturesTest, widePictureOfEveryHeight)
{
    Picture picture = wide(names()[3], QStringLiteral("87%"));
    picture.inAllHeights = true;
    std::vector<int> heights;
    for (const QImage& image : allDrawn(picture)) {
        EXPECT_GT(image.width(), 2 * image.height());
        EXPECT_GT(lightPixels(image), image.width());
        heights.push_back(image.height());
    }
    EXPECT_EQ(heights, (std::vector{16, 18, 20, 22, 24, 26, 28, 30, 32, 36, 40, 44, 48}));
}

TEST_F(StatusPicturesTest, anyTextCanBeDrawn)
{
    for (const char* title : {"\u202e87%", "שלום 87%", "😀", "e\u0301\u0301\u0301", "&amp; <b>"})
        EXPECT_EQ(allDrawn(wide({}, QString::fromUtf8(title))).size(), 1U) << title;
}

TEST_F(StatusPicturesTest, transparentPictureIsOnePixelInAFile)
{
    EXPECT_TRUE(allDrawn({Picture::Kind::Transparent, {}, {}, 0.0, 0}).empty());
    const QImage image(pictures.transparentFile());
    EXPECT_EQ(image.size(), QSize(1, 1));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
}

TEST_F(StatusPicturesTest, fileHasTheLargestSquare)
{
    const QString path = pictures.file(iconPicture(names()[0]));
    EXPECT_EQ(QImage(path).size(), QSize(44, 44));
    EXPECT_FALSE(path.contains(QLatin1Char('#')));
    QFile::remove(path);
}

/// The path's attributes in a drawing whose style sheet hosts know by its id; fails for another drawing.
QXmlStreamAttributes colouredPath(const QString& file)
{
    QFile drawing(file);
    EXPECT_TRUE(drawing.open(QIODevice::ReadOnly)) << file.toStdString();
    QXmlStreamReader reader(&drawing);
    bool hasSheet = false;
    QXmlStreamAttributes path;
    while (reader.readNext() != QXmlStreamReader::EndDocument && !reader.hasError()) {
        if (reader.isStartElement() && reader.name() == u"style")
            hasSheet = reader.attributes().value(QStringLiteral("id")) == u"current-color-scheme" &&
                       reader.readElementText().contains(QStringLiteral(".ColorScheme-Text"));
        if (reader.isStartElement() && reader.name() == u"path")
            path = reader.attributes();
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_TRUE(hasSheet) << file.toStdString();
    return path;
}

TEST_F(StatusPicturesTest, drawingsLeaveTheColourToTheHost)
{
    QStringList files{pictures.drawing(text("87"))};
    for (const QString& name : names()) {
        Picture picture = iconPicture(name);
        files.append(pictures.drawing(picture));
        picture.isSmall = true;
        files.append(pictures.drawing(picture));
    }
    for (const QString& file : files) {
        EXPECT_TRUE(file.startsWith(QLatin1Char('/')) && file.endsWith(QStringLiteral("-symbolic.svg")));
        const QXmlStreamAttributes path = colouredPath(file);
        EXPECT_EQ(path.value(QStringLiteral("class")), QStringLiteral("ColorScheme-Text"));
        EXPECT_EQ(path.value(QStringLiteral("fill")), QStringLiteral("currentColor"));
    }
    QFile::remove(files.first());
}

TEST_F(StatusPicturesTest, smallDrawingsAreMadeOnSixteenPixels)
{
    for (const QString& name : names()) {
        Picture picture = iconPicture(name);
        EXPECT_EQ(QSvgRenderer(pictures.drawing(picture)).viewBox(), QRect(0, 0, 22, 22))
            << name.toStdString();
        picture.isSmall = true;
        EXPECT_EQ(QSvgRenderer(pictures.drawing(picture)).viewBox(), QRect(0, 0, 16, 16))
            << name.toStdString();
    }
}

TEST_F(StatusPicturesTest, drawnNumberFillsTheSquare)
{
    for (const char* number : {"7", "87", "100"}) {
        const QString path = pictures.drawing(text(number));
        QSvgRenderer renderer(path);
        ASSERT_TRUE(renderer.isValid()) << number;
        QImage image(220, 220, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter);
        QRect inked;
        for (int y = 0; y < 220; ++y) {
            for (int x = 0; x < 220; ++x)
                inked |= image.pixelColor(x, y).alpha() > 128 ? QRect(x, y, 1, 1) : QRect();
        }
        EXPECT_NEAR(std::max(inked.width(), inked.height()), 200, 2) << number;
        EXPECT_NEAR(inked.center().x(), 110, 2) << number;
        EXPECT_NEAR(inked.center().y(), 110, 2) << number;
        QFile::remove(path);
    }
}

TEST_F(StatusPicturesTest, whatHasNoDrawingHasNoFile)
{
    EXPECT_EQ(pictures.drawing(iconPicture(QStringLiteral("none"))), QString());
}

TEST_F(StatusPicturesTest, numbersDoNotShareADrawing)
{
    EXPECT_NE(pictures.drawing(text("-5")), pictures.drawing(text("5")));
    Picture charging = text("5");
    charging.hasBolt = true;
    EXPECT_NE(pictures.drawing(charging), pictures.drawing(text("5")));
    EXPECT_NE(pictures.file(charging), pictures.file(text("5")));
    QFile::remove(pictures.drawing(charging));
    for (const char* number : {"-5", "5"})
        QFile::remove(pictures.drawing(text(number)));
}

TEST(NotifierPixmap, pixelsAreInNetworkOrderAndNotPremultiplied)
{
    const NotifierPixmap pixmap = notifierPixmap(Pixels{2, 1, {0xff112233, 0x80808080}});
    EXPECT_EQ(pixmap.width, 2);
    EXPECT_EQ(pixmap.height, 1);
    EXPECT_EQ(pixmap.pixels, QByteArray::fromHex("ff11223380ffffff"));
}

} // namespace
} // namespace quindle
