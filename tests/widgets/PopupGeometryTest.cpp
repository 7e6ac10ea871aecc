#include "widgets/PopupGeometry.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace {

constexpr QSize popupSize(300, 600);

struct Case
{
    const char* name;
    QPoint anchor;
    QRect available;
    QRect popup;
};

TEST(PopupGeometry, BesideThePanel)
{
    const Case cases[]{
        {"top panel", {900, 14}, {0, 28, 1920, 1052}, {750, 32, 300, 600}},
        {"top right corner", {1910, 14}, {0, 28, 1920, 1052}, {1616, 32, 300, 600}},
        {"bottom panel", {900, 1070}, {0, 0, 1920, 1050}, {750, 446, 300, 600}},
        {"left panel", {10, 500}, {40, 0, 1880, 1080}, {44, 476, 300, 600}},
        {"right panel", {1910, 100}, {0, 0, 1880, 1080}, {1576, 104, 300, 600}},
        {"second screen", {-500, 10}, {-1920, 30, 1920, 1050}, {-650, 34, 300, 600}},
        {"low screen", {400, 590}, {0, 0, 800, 480}, {250, 4, 300, 472}},
        {"tiny screen", {10, 10}, {0, 0, 200, 100}, {4, 4, 192, 92}},
    };
    for (const Case& row : cases) {
        const QRect popup = popupGeometry(row.anchor, popupSize, row.available, 4);
        EXPECT_EQ(popup.topLeft(), row.popup.topLeft()) << row.name << ' ' << popup.x() << ',' << popup.y();
        EXPECT_EQ(popup.size(), row.popup.size()) << row.name;
        EXPECT_TRUE(row.available.contains(popup)) << row.name;
    }
}

struct PopoverCase
{
    const char* what;
    QRect anchor;
    QSize size;
    Qt::LayoutDirection direction;
    QPoint expected;
};

TEST(PopoverGeometryTest, OpensBesideItsSender)
{
    const QRect screen(0, 30, 1000, 770);
    const QSize size(200, 180);
    const PopoverCase cases[] = {
        {"right edge", {400, 300, 80, 30}, size, Qt::LeftToRight, {485, 225}},
        {"right edge, just fits", {715, 300, 80, 30}, size, Qt::LeftToRight, {800, 225}},
        {"no room at the right", {716, 300, 80, 30}, size, Qt::LeftToRight, {511, 225}},
        {"right to left", {400, 300, 80, 30}, size, Qt::RightToLeft, {195, 225}},
        {"right to left, no room at the left", {204, 300, 80, 30}, size, Qt::RightToLeft, {289, 225}},
        {"top of the screen", {400, 40, 80, 30}, size, Qt::LeftToRight, {485, 30}},
        {"bottom of the screen", {400, 760, 80, 30}, size, Qt::LeftToRight, {485, 620}},
        {"no room at either side", {100, 300, 800, 30}, size, Qt::LeftToRight, {800, 225}},
        {"no room at either side, right to left", {100, 300, 800, 30}, size, Qt::RightToLeft, {0, 225}},
        {"larger than the screen", {400, 300, 80, 30}, {1200, 900}, Qt::LeftToRight, {0, 30}},
    };
    for (const PopoverCase& c : cases)
        EXPECT_EQ(popoverGeometry(c.anchor, c.size, {}, screen, c.direction, 5), QRect(c.expected, c.size))
            << c.what;
}

TEST(PopoverGeometryTest, StaysOnItsSendersScreen)
{
    const QRect second(1000, 0, 1000, 800);
    EXPECT_EQ(popoverGeometry({1900, 300, 80, 30}, {200, 180}, {}, second, Qt::LeftToRight, 5),
              QRect(1695, 225, 200, 180));
    EXPECT_EQ(popoverGeometry({1010, 300, 80, 30}, {200, 180}, {}, second, Qt::RightToLeft, 5),
              QRect(1095, 225, 200, 180));
}

struct KeptClearCase
{
    const char* what;
    QRect field;
    QSize size;
    QRect expected;
};

TEST(PopoverGeometryTest, NeverCoversTheFieldThatItWritesIn)
{
    const QRect screen(0, 30, 1024, 570);
    const KeptClearCase cases[] = {
        {"clear anyway", {300, 260, 400, 30}, {200, 60}, {485, 295, 200, 60}},
        {"below", {300, 260, 400, 30}, {200, 180}, {485, 295, 200, 180}},
        {"above, where it does not fit below", {300, 420, 400, 30}, {200, 300}, {485, 115, 200, 300}},
        {"cut below", {300, 260, 400, 30}, {200, 500}, {485, 295, 200, 305}},
        {"cut above", {300, 420, 400, 30}, {200, 500}, {485, 30, 200, 385}},
        {"cut, and no room at either side", {300, 260, 400, 30}, {1000, 500}, {24, 295, 1000, 305}},
    };
    for (const KeptClearCase& c : cases) {
        const QRect anchor(400, c.field.y() + 50, 80, 30);
        const QRect place = popoverGeometry(anchor, c.size, c.field, screen, Qt::LeftToRight, 5);
        EXPECT_EQ(place, c.expected) << c.what;
        EXPECT_FALSE(place.intersects(c.field)) << c.what;
        EXPECT_TRUE(screen.contains(place)) << c.what;
    }
}

} // namespace
