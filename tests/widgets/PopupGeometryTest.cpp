#include "widgets/PopupGeometry.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace {

constexpr QSize size(300, 600);

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
        const QRect popup = popupGeometry(row.anchor, size, row.available, 4);
        EXPECT_EQ(popup.topLeft(), row.popup.topLeft()) << row.name << ' ' << popup.x() << ',' << popup.y();
        EXPECT_EQ(popup.size(), row.popup.size()) << row.name;
        EXPECT_TRUE(row.available.contains(popup)) << row.name;
    }
}

} // namespace
