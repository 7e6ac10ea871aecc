#include "widgets/PopoverGeometry.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace {

struct Case
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
    const Case cases[] = {
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
    for (const Case& c : cases)
        EXPECT_EQ(popoverPosition(c.anchor, c.size, screen, c.direction, 5), c.expected) << c.what;
}

TEST(PopoverGeometryTest, StaysOnItsSendersScreen)
{
    const QRect second(1000, 0, 1000, 800);
    EXPECT_EQ(popoverPosition({1900, 300, 80, 30}, {200, 180}, second, Qt::LeftToRight, 5),
              QPoint(1695, 225));
    EXPECT_EQ(popoverPosition({1010, 300, 80, 30}, {200, 180}, second, Qt::RightToLeft, 5),
              QPoint(1095, 225));
}

} // namespace
