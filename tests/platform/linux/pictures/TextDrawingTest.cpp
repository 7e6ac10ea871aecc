#include "platform/linux/pictures/TextDrawing.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <gtest/gtest.h>

#include "platform/linux/pictures/Lettering.h"
#include "tests/support/QtPrinters.h"

namespace quindle {
namespace {

TEST(TextDrawing, TheOutlineFillsTheDrawingButForAMargin)
{
    const std::vector<OutlineStep> outline{{'M', {{10, 10}}},
                                           {'L', {{30, 10}}},
                                           {'Q', {{30, 20}, {20, 20}}},
                                           {'C', {{18, 20}, {12, 20}, {10, 15}}},
                                           {'Z', {}}};
    const QByteArray drawing = textDrawing(outline, QRectF(10, 10, 20, 10), {QRectF(1, 6, 20, 10), {}});
    EXPECT_TRUE(drawing.contains("d=\"M1.00 6.00L21.00 6.00Q21.00 16.00 11.00 16.00"
                                 "C9.00 16.00 3.00 16.00 1.00 11.00Z\""))
        << drawing.constData();
    EXPECT_TRUE(drawing.contains("class=\"ColorScheme-Text\" fill=\"currentColor\""));
}

TEST(TextDrawing, TheOutlineIsStretchedToItsPlaceAndTheBoltDrawnInIts)
{
    const std::vector<OutlineStep> outline{{'M', {{0, 0}}}, {'L', {{30, 10}}}, {'Z', {}}};
    const QByteArray drawing =
        textDrawing(outline, QRectF(0, 0, 30, 10), {QRectF(1, 1, 20, 10), QRectF(6, 12, 10, 10)});
    EXPECT_TRUE(drawing.contains("d=\"M1.00 1.00L21.00 11.00ZM12.80 12.00L6.00 18.60L"))
        << drawing.constData();
    EXPECT_TRUE(QSvgRenderer(drawing).isValid());
}

TEST(TextDrawing, WithoutInkThereIsNone)
{
    EXPECT_EQ(textDrawing({}, QRectF(0, 0, 1, 1), {}), QByteArray());
    EXPECT_EQ(textDrawing({{'M', {{1, 1}}}}, QRectF(), {}), QByteArray());
}

TEST(TextDrawing, TheDrawnTextLooksLikeTheWrittenOne)
{
    Lettering lettering;
    lettering.setFamily(QStringLiteral("DejaVu Sans"));
    std::vector<OutlineStep> outline;
    const QRectF box = lettering.addOutline(lettering.line(QStringLiteral("80"), 1000), outline);
    QSvgRenderer drawing(textDrawing(outline, box, numberPlace(box.size(), box.width(), false)));
    ASSERT_TRUE(drawing.isValid());
    QImage drawn(220, 220, QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    drawing.render(&painter);
    painter.end();

    const TextLine line = lettering.line(QStringLiteral("80"), static_cast<int>(1000 * 200 / box.width()));
    const QPointF origin = QPointF(110, 110) - lettering.inkOf(line).center();
    Pixels written = blankPixels(220, 220);
    lettering.paint(written, qRound(origin.x()), qRound(origin.y()), line, 0xff000000);
    int same = 0;
    int inked = 0;
    for (int y = 0; y < 220; ++y) {
        for (int x = 0; x < 220; ++x) {
            const bool isInked = qAlpha(drawn.pixel(x, y)) > 128;
            inked += isInked ? 1 : 0;
            same += isInked == (alphaOf(colourAt(written, x, y)) > 128) ? 1 : 0;
        }
    }
    EXPECT_GT(inked, 10'000) << "also inside the holes of the figures nothing is filled";
    EXPECT_LT(inked, 25'000);
    EXPECT_GT(same, 220 * 220 * 98 / 100);
}

} // namespace
} // namespace quindle
