#include "preferences/window/WindowFrame.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

std::string textOf(const QRect& rect)
{
    return frameText({rect, rect}).section(QLatin1Char(' '), 0, 3).toStdString();
}

TEST(WindowFrame, IsEightNumbers)
{
    const WindowFrame frame{QRect(-12, 30, 564, 395), QRect(-1920, 0, 1920, 1050)};
    EXPECT_EQ(frameText(frame), QStringLiteral("-12 30 564 395 -1920 0 1920 1050"));
    EXPECT_EQ(frameFromText(frameText(frame)), frame);
    EXPECT_EQ(frameFromText(QStringLiteral("-12 30  564 395 -1920 0 1920 1050 ")), frame);
}

TEST(WindowFrame, OfAnotherFormIsNone)
{
    const char* texts[]{
        "",
        "frame",
        "10 20 300 400",
        "10 20 300 400 0 0 1920",
        "10 20 300 400 0 0 1920 1080 1",
        "10 20 x 400 0 0 1920 1080",
        "10 20 300.5 400 0 0 1920 1080",
        "10 20 0 400 0 0 1920 1080",
        "10 20 300 -400 0 0 1920 1080",
        "10 20 300 400 0 0 0 1080",
        "1000001 20 300 400 0 0 1920 1080",
        "99999999999 20 300 400 0 0 1920 1080",
    };
    for (const char* text : texts)
        EXPECT_FALSE(frameFromText(QString::fromLatin1(text))) << text;
}

struct Case
{
    const char* name;
    QRect frame;
    QRect screen;
    std::vector<QRect> present;
    QPoint place;
};

TEST(WindowFrame, GoesOntoAScreenThatIsThere)
{
    const QRect laptop(0, 28, 1920, 1052);
    const QRect right(1920, 0, 2560, 1440);
    const QRect small(0, 0, 500, 300);
    const QSize size(600, 400);
    const Case cases[]{
        {"same screen", {{100, 200}, size}, laptop, {laptop}, {100, 200}},
        {"second screen", {{2000, 50}, size}, right, {laptop, right}, {2000, 50}},
        {"second screen gone", {{2000, 50}, size}, right, {laptop}, {80, 78}},
        {"second screen gone, far in its corner", {{3800, 1000}, size}, right, {laptop}, {1320, 680}},
        {"left of everything", {{-1900, 90}, size}, {-1920, 0, 1920, 1080}, {laptop}, {20, 118}},
        {"partly outside", {{1800, 900}, size}, laptop, {laptop}, {1320, 680}},
        {"partly above the panel", {{-40, 0}, size}, laptop, {laptop}, {0, 28}},
        {"on two screens, more of it right", {{1800, 100}, size}, laptop, {laptop, right}, {1920, 100}},
        {"on two screens, more of it left", {{1500, 100}, size}, laptop, {laptop, right}, {1320, 100}},
        {"screen became smaller", {{1300, 600}, size}, laptop, {{0, 0, 1280, 720}}, {680, 320}},
        {"larger than the screen", {{100, 100}, size}, laptop, {small}, {0, 0}},
        {"no screen at all", {{100, 200}, size}, laptop, {}, {100, 200}},
    };
    for (const Case& row : cases) {
        const QRect placed = placedFrame({row.frame, row.screen}, row.present);
        EXPECT_EQ(placed, QRect(row.place, size)) << row.name << ": " << textOf(placed);
    }
}

TEST(WindowFrame, IsCentred)
{
    EXPECT_EQ(centredFrame({600, 400}, {0, 30, 1920, 1050}), QRect(660, 355, 600, 400));
    EXPECT_EQ(centredFrame({600, 400}, {1920, 0, 1280, 720}), QRect(2260, 160, 600, 400));
    EXPECT_EQ(centredFrame({600, 400}, {10, 20, 500, 300}), QRect(10, 20, 600, 400));
}

} // namespace
