#include "platform/linux/pictures/IconMasks.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/platform/linux/pictures/PictureImage.h"

namespace quindle {
namespace {

QByteArray square(int side)
{
    const QByteArray number = QByteArray::number(side);
    return "P5\n" + number + ' ' + number + "\n255\n" + QByteArray(side * side, '\xff');
}

TEST(MasksOf, EachPictureOfTheFileIsAShape)
{
    const std::vector<Mask> masks = masksOf(square(2) + "P5 3 3 255\n" + QByteArrayLiteral("abcdefghi"));
    ASSERT_EQ(masks.size(), 2U);
    EXPECT_EQ(masks[0], (Mask{2, 2, {255, 255, 255, 255}}));
    EXPECT_EQ(masks[1], (Mask{3, 3, {'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h', 'i'}}));
}

TEST(MasksOf, AnythingElseIsNoShape)
{
    const QByteArray rows[] = {
        {},
        "P5",
        "P5\n",
        "P5\n2 2\n255",
        "P5\n2 2\n255\n",
        "P5\n2 2\n255\nabc",
        "P6\n2 2\n255\nabcd",
        "P2\n1 1\n255\n9",
        "P5\n2 1\n255\nab",
        "P5\n0 0\n255\n",
        "P5\n-1 -1\n255\na",
        "P5\n1 1\n65535\nab",
        "P5\n65536 65536\n255\na",
        "P5\n99999999999 99999999999\n255\na",
        "P5\n# a remark\n1 1\n255\na",
        square(2) + "x",
        square(2).chopped(1) + square(3),
    };
    for (const QByteArray& row : rows)
        EXPECT_TRUE(masksOf(row).empty()) << row.constData();
}

TEST(MasksOf, NoBeginningOfAFileIsMoreThanItsWholePictures)
{
    const QByteArray file = square(16) + square(22);
    for (qsizetype length = 0; length < file.size(); ++length)
        EXPECT_EQ(masksOf(file.left(length)).size(), length == square(16).size() ? 1U : 0U) << length;
}

TEST(FittingMask, IsTheLargestThatFits)
{
    const std::vector<Mask> masks = masksOf(square(16) + square(22) + square(32) + square(44));
    struct Row
    {
        int size;
        int width;
    };
    constexpr Row rows[] = {{1, 16},  {16, 16}, {18, 16}, {21, 16}, {22, 22}, {24, 22},
                            {31, 22}, {32, 32}, {43, 32}, {44, 44}, {48, 44}, {1000, 44}};
    for (const Row& row : rows)
        EXPECT_EQ(fittingMask(masks, row.size)->width, row.width) << row.size;
    EXPECT_EQ(fittingMask({}, 22), nullptr);
}

class IconMasksTest : public testing::Test
{
protected:
    IconMasks masks{QStringLiteral(QUINDLE_RESOURCES "/masks")};
};

TEST_F(IconMasksTest, ShapesAreThoseOfTheDrawings)
{
    const QString icons = QStringLiteral(QUINDLE_ICONS);
    for (const char* name :
         {"#bat04", "#bat14", "#bat24", "#bat34", "#bat44", "#bat04Charge", "#bat44Charge", "AppIconBW"}) {
        for (const int size : {16, 22, 32, 44}) {
            const QString folder = icons + (size < 20 ? QStringLiteral("/16/") : QStringLiteral("/"));
            QSvgRenderer drawing(folder + QLatin1String(name) + QStringLiteral("-symbolic.svg"));
            QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            drawing.render(&painter);
            painter.end();
            const Mask mask = masks.mask(QString::fromLatin1(name), size);
            ASSERT_EQ(mask.width, size) << name;
            for (int y = 0; y < size; ++y) {
                for (int x = 0; x < size; ++x)
                    ASSERT_EQ(mask.coverage[static_cast<std::size_t>(y * size + x)],
                              qAlpha(image.pixel(x, y)))
                        << name << " of " << size << " at " << x << ',' << y;
            }
        }
    }
}

TEST_F(IconMasksTest, AShapeStandsInTheMiddleOfALargerSquare)
{
    for (const auto& [size, drawn] : {std::pair{18, 16}, {24, 22}, {48, 44}}) {
        const Mask mask = masks.mask(QStringLiteral("#bat44"), size);
        const Mask alone = masks.mask(QStringLiteral("#bat44"), drawn);
        const int margin = (size - drawn) / 2;
        ASSERT_EQ(mask.coverage.size(), static_cast<std::size_t>(size * size));
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const bool isInside = x >= margin && x < margin + drawn && y >= margin && y < margin + drawn;
                const auto place = static_cast<std::size_t>((y - margin) * drawn + x - margin);
                EXPECT_EQ(mask.coverage[static_cast<std::size_t>(y * size + x)],
                          isInside ? alone.coverage[place] : 0);
            }
        }
    }
}

TEST_F(IconMasksTest, AShapeThatIsTooLargeLosesItsEdges)
{
    const Mask small = masks.mask(QStringLiteral("#bat44"), 3);
    EXPECT_EQ(small.coverage.size(), 9U);
    EXPECT_TRUE(masks.mask(QStringLiteral("#bat44"), 0).isEmpty());
    EXPECT_TRUE(masks.mask(QStringLiteral("#bat44"), -5).isEmpty());
}

TEST(IconMasks, AMissingOrBrokenFileIsLoggedOnce)
{
    const QTemporaryDir folder;
    QFile broken(folder.filePath(QStringLiteral("broken.pgm")));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("P5\n9 9\n255\n") > 0);
    broken.close();
    IconMasks masks(folder.path());
    for (const QString& name : {QStringLiteral("none"), QStringLiteral("broken")}) {
        testing::internal::CaptureStderr();
        for (const int size : {16, 22, 44, 22})
            EXPECT_TRUE(masks.mask(name, size).isEmpty());
        EXPECT_TRUE(masks.mask(QStringLiteral("other"), 22).isEmpty());
        EXPECT_TRUE(masks.mask(name, 22).isEmpty());
        const QByteArray log = QByteArray::fromStdString(testing::internal::GetCapturedStderr());
        EXPECT_EQ(log.count(name.toUtf8() + ".pgm"), 1) << log.constData();
    }
}

} // namespace
} // namespace quindle
