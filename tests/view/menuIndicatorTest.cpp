#include "view/menuIndicator.h"

#include <limits>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>

#include "menubar/ProgressIndicator.h"
#include "tests/view/Palettes.h"
#include "widgets/PaletteMix.h"

using namespace quindle;

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

ContentFilters filters(double angle)
{
    auto filter = std::make_shared<HueFilter>();
    filter->setInputAngle(angle);
    return {filter};
}

struct Bar : testing::Test
{
    Bar() { setPalette(test::lightPalette()); }

    void setPalette(const QPalette& palette)
    {
        parent.setBackgroundRole(QPalette::Base);
        parent.setPalette(palette);
        parent.resize(200, 10);
        bar.resize(200, 10);
    }

    QColor pixel(int x)
    {
        QImage image(bar.size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        bar.render(&image, {}, {}, {});
        return image.pixelColor(x, 5);
    }

    bool isFilled(int x) { return pixel(x).hsvSaturation() > 100; }

    ProgressIndicator indicator;
    QWidget parent;
    menuIndicator bar{&parent};
};

TEST_F(Bar, FiltersDecideTheColour)
{
    struct Band
    {
        double angle;
        int from;
        int to;
    };
    const Band bands[]{{4, 95, 135}, {-16, 38, 55}, {241, 0, 14}};
    bar.follow(indicator);
    bar.setPercent(50);
    for (const QPalette& palette : {test::lightPalette(), test::darkPalette()}) {
        setPalette(palette);
        for (const Band& band : bands) {
            indicator.setContentFilters(filters(band.angle));
            const QColor color = pixel(50);
            EXPECT_GE(color.hsvHue(), band.from) << band.angle;
            EXPECT_LE(color.hsvHue(), band.to) << band.angle;
            EXPECT_GT(color.hsvSaturation(), 150) << band.angle;
            EXPECT_GT(contrast(color, pixel(150)), 1.3) << band.angle; // stands out from the track
        }
    }
}

TEST_F(Bar, WithoutFiltersTheBaseColour)
{
    bar.setPercent(50);
    EXPECT_NEAR(pixel(50).hsvHue(), 240, 5);
}

TEST_F(Bar, TrackStandsOutFromTheBackground)
{
    for (const QPalette& palette : {test::lightPalette(), test::darkPalette()}) {
        setPalette(palette);
        EXPECT_GT(contrast(pixel(150), backgroundOf(bar)), 1.15);
    }
}

struct Filling
{
    double percent;
    bool atStart;
    bool atMiddle;
    bool atEnd;
};

TEST_F(Bar, AnyNumberIsDrawn)
{
    const Filling fillings[]{
        {0, false, false, false},         {nan, false, false, false}, {-5, false, false, false},
        {-infinity, false, false, false}, {49, true, false, false},   {51, true, true, false},
        {100, true, true, true},          {250, true, true, true},    {infinity, true, true, true},
    };
    for (const Filling& row : fillings) {
        bar.setPercent(row.percent);
        EXPECT_EQ(isFilled(3), row.atStart) << row.percent;
        EXPECT_EQ(isFilled(99), row.atMiddle) << row.percent;
        EXPECT_EQ(isFilled(196), row.atEnd) << row.percent;
    }
}

TEST_F(Bar, FillsFromTheRightInRightToLeft)
{
    bar.setLayoutDirection(Qt::RightToLeft);
    bar.setPercent(25);
    EXPECT_TRUE(isFilled(190));
    EXPECT_FALSE(isFilled(140));
    EXPECT_FALSE(isFilled(10));
}

TEST_F(Bar, AnnouncesItselfToAssistivePrograms)
{
    bar.setAccessibleName(QStringLiteral("Charge"));
    bar.setPercent(66.66);
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&bar);
    ASSERT_TRUE(accessible && accessible->valueInterface());
    EXPECT_EQ(accessible->role(), QAccessible::ProgressBar);
    EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Charge"));
    EXPECT_EQ(accessible->valueInterface()->currentValue().toInt(), 67);
    EXPECT_EQ(accessible->valueInterface()->maximumValue().toInt(), 100);
}

TEST_F(Bar, LetsGoOfItsIndicator)
{
    {
        menuIndicator other;
        other.follow(indicator);
    }
    indicator.setContentFilters(filters(4));
}

TEST(PaletteMix, QuietTextIsReadable)
{
    for (const QPalette& palette :
         {test::lightPalette(), test::darkPalette(), test::paletteOf(Qt::black, Qt::white, Qt::white),
          test::paletteOf(Qt::white, Qt::black, Qt::black)}) {
        const QColor text = palette.color(QPalette::Text);
        const QColor base = palette.color(QPalette::Base);
        const QColor quiet = quietText(text, base);
        EXPECT_GE(contrast(quiet, base), 4.5);
        EXPECT_LT(contrast(quiet, base), contrast(text, base));
    }
    const QColor grey(120, 120, 120);
    EXPECT_EQ(quietText(grey, QColor(100, 100, 100)), grey); // nothing is readable
}

TEST(PaletteMix, Contrast)
{
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(Qt::white, Qt::white), 1, 0.01);
    EXPECT_NEAR(contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
}

} // namespace
