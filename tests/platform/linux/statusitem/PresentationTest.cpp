#include "platform/linux/statusitem/Presentation.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

namespace quindle {
namespace {

using PictureKind = Picture::Kind;

constexpr HostTraits labelHost{HostShape::Label};
constexpr HostTraits wideHost{HostShape::Wide};
constexpr HostTraits squareHost{HostShape::Square};

struct PictureCase
{
    const char* name;
    HostShape shape;
    const char* title;
    const char* image;
    const char* fallback;
    PictureKind kind;
    const char* drawnImage;
    const char* drawnText;
};

class PictureTable : public testing::TestWithParam<PictureCase>
{
};

TEST_P(PictureTable, isNeverEmptyUnlessTheHostWritesTheTitle)
{
    const PictureCase& c = GetParam();
    const ItemContents contents{u(c.title), u(c.image), u(c.fallback), {}, 12.0};
    const Picture picture = present(contents, {c.shape}).picture;
    EXPECT_EQ(picture.kind, c.kind);
    EXPECT_EQ(picture.imageName, u(c.drawnImage));
    EXPECT_EQ(picture.text, u(c.drawnText));
}

INSTANTIATE_TEST_SUITE_P(
    Pictures, PictureTable,
    testing::Values(
        PictureCase{"labelWithIcon", HostShape::Label, "87.0%", "#bat34", "87", PictureKind::Icon, "#bat34",
                    ""},
        PictureCase{"labelWithoutIcon", HostShape::Label, "87.0%", "", "87", PictureKind::Transparent, "",
                    ""},
        PictureCase{"labelWithoutAnything", HostShape::Label, "", "", "", PictureKind::Icon, "AppIconBW", ""},
        PictureCase{"labelWithoutTitle", HostShape::Label, "", "", "87", PictureKind::Text, "", "87"},
        PictureCase{"labelBlankTitle", HostShape::Label, " \n ", "", "", PictureKind::Icon, "AppIconBW", ""},
        PictureCase{"wideWithIcon", HostShape::Wide, "87.0%", "#bat34", "87", PictureKind::Wide, "#bat34",
                    "87.0%"},
        PictureCase{"wideWithoutIcon", HostShape::Wide, "87.0%", "", "87", PictureKind::Wide, "", "87.0%"},
        PictureCase{"wideIconOnly", HostShape::Wide, "", "#bat34", "87", PictureKind::Icon, "#bat34", ""},
        PictureCase{"wideWithoutAnything", HostShape::Wide, "", "", "", PictureKind::Icon, "AppIconBW", ""},
        PictureCase{"wideLines", HostShape::Wide, "a\nb\t\n", "", "", PictureKind::Wide, "", "a b"},
        PictureCase{"squareWithIcon", HostShape::Square, "87.0%", "#bat34", "87", PictureKind::Icon, "#bat34",
                    ""},
        PictureCase{"squareWithoutIcon", HostShape::Square, "87.0%", "", "87", PictureKind::Text, "", "87"},
        PictureCase{"squareFull", HostShape::Square, "100.0%", "", "100", PictureKind::Text, "", "100"},
        PictureCase{"squareTooLong", HostShape::Square, "x", "", "-inf", PictureKind::Icon, "AppIconBW", ""},
        PictureCase{"squareWithoutFallback", HostShape::Square, "87.0%", "", "", PictureKind::Icon,
                    "AppIconBW", ""}),
    [](const auto& row) { return row.param.name; });

TEST(Presentation, ANumberStandsForAWidePictureWherePicturesAreSquare)
{
    HostTraits host = squareHost;
    host.showsNumber = true;
    const ItemContents known{u("87.0% 1:35"), u("#bat34"), u("87"), {}, 12.0};
    EXPECT_EQ(present(known, host).picture.kind, PictureKind::Text);
    EXPECT_EQ(present(known, host).picture.text, u("87"));
    const ItemContents unknown{u(""), u("#nobat"), u(""), {}, 12.0};
    EXPECT_EQ(present(unknown, host).picture.imageName, u("#nobat"));
}

TEST(Presentation, ANumberShowsPowerAndIconsHaveTheirOwnBolt)
{
    ItemContents contents{u("87.0%"), {}, u("87"), {}, 12.0};
    EXPECT_FALSE(present(contents, squareHost).picture.hasBolt);
    contents.hasPower = true;
    EXPECT_TRUE(present(contents, squareHost).picture.hasBolt);
    contents.imageName = u("#bat44Charge");
    EXPECT_FALSE(present(contents, squareHost).picture.hasBolt);
    EXPECT_FALSE(present(contents, wideHost).picture.hasBolt);
    EXPECT_FALSE(present(contents, labelHost).picture.hasBolt);
}

TEST(Presentation, WhatIsSeenOfItIsGivenToAWindow)
{
    using Form = ShownItem::Form;
    struct Case
    {
        const char* name = nullptr;
        HostTraits host;
        const char* image = nullptr;
        ShownItem shown;
        bool hasSquare = false;
    };
    HostTraits numberHost = squareHost;
    numberHost.showsNumber = true;
    const Case cases[]{
        {"label", labelHost, "#bat34", {Form::Text, u("87.0%")}, true},
        {"label without icon", labelHost, "", {Form::Text, u("87.0%")}, false},
        {"wide", wideHost, "#bat34", {Form::Text, u("87.0%")}, true},
        {"wide without icon", wideHost, "", {Form::Text, u("87.0%")}, false},
        {"square", squareHost, "#bat34", {Form::Icon}, true},
        {"square without icon", squareHost, "", {Form::Number, u("87")}, true},
        {"number", numberHost, "#bat34", {Form::Number, u("87")}, true},
    };
    for (const Case& c : cases) {
        const Presentation presented = present({u("87.0%"), u(c.image), u("87"), {}, 12.0}, c.host);
        EXPECT_EQ(shownItem(presented, c.host.shape), c.shown) << c.name;
        const auto square = shownSquare(presented);
        ASSERT_EQ(square.has_value(), c.hasSquare) << c.name;
        if (square) {
            EXPECT_NE(square->kind, PictureKind::Wide) << c.name;
            EXPECT_TRUE(isKnown(square->ink)) << c.name;
        }
    }
    EXPECT_EQ(shownItem(present({{}, u("#bat34"), u("87"), {}, 12.0}, labelHost), HostShape::Label).form,
              Form::Icon);
}

TEST(Presentation, textsOfAnOrdinaryTitle)
{
    const Presentation presented = present({u("87.0%"), {}, u("87"), u("Charging"), 12.0}, squareHost);
    EXPECT_EQ(presented.title, u("87.0%"));
    EXPECT_EQ(presented.toolTipTitle, u("87.0%"));
    EXPECT_EQ(presented.toolTipBody, u("Charging"));
    EXPECT_EQ(presented.plainToolTip, u("87.0%\nCharging"));
    EXPECT_EQ(presented.label, u("87.0%"));
    EXPECT_EQ(presented.labelGuide, u("100.0%"));
}

TEST(Presentation, longTitleStaysExactAndIsCutWhereItIsShown)
{
    const QString title(10000, QLatin1Char('x'));
    const Presentation presented = present({title, {}, {}, title, 12.0}, wideHost);
    EXPECT_EQ(presented.title, title);
    EXPECT_EQ(presented.label.size(), 60);
    EXPECT_EQ(presented.picture.text.size(), 40);
    EXPECT_EQ(presented.toolTipTitle.size(), 1000);
    EXPECT_EQ(presented.toolTipBody.size(), 1000);
}

TEST(Presentation, titleKeepsLineBreaksLabelDoesNot)
{
    const Presentation presented = present({u("a\nb"), {}, {}, {}, 12.0}, labelHost);
    EXPECT_EQ(presented.title, u("a\nb"));
    EXPECT_EQ(presented.label, u("a b"));
}

TEST(Presentation, toolTipIsEscapedWhereItIsMarkup)
{
    const ItemContents contents{u("R&D <b>"), {}, {}, u("a & b"), 12.0};
    EXPECT_EQ(present(contents, squareHost).toolTipTitle, u("R&amp;D &lt;b&gt;"));
    EXPECT_EQ(present(contents, squareHost).toolTipBody, u("a &amp; b"));
    HostTraits escaping = squareHost;
    escaping.escapesToolTipTitle = true;
    EXPECT_EQ(present(contents, escaping).toolTipTitle, u("R&D <b>"));
    EXPECT_EQ(present(contents, escaping).toolTipBody, u("a &amp; b"));
}

TEST(Presentation, toolTipIsInTheTitleWhereNothingElseIsShown)
{
    const HostTraits host{HostShape::Square, true, false, true};
    EXPECT_EQ(present({u("87.0%"), {}, {}, u("a & b"), 12.0}, host).toolTipTitle, u("87.0%\na & b"));
    const QString markup = present({u("R&D <b>"), {}, {}, u("a"), 12.0}, host).toolTipTitle;
    EXPECT_TRUE(markup.contains(u("R&amp;D")) && markup.contains(u("&lt;b&gt;<br>"))) << markup.toStdString();
}

TEST(Presentation, everyPictureHasTheColourOfThePanelsText)
{
    HostTraits host;
    EXPECT_FALSE(isKnown(present({}, host).picture.ink));
    host.textColour = opaqueColour(1, 2, 3);
    for (const HostShape shape : {HostShape::Label, HostShape::Square, HostShape::Wide}) {
        host.shape = shape;
        EXPECT_EQ(present({u("87%"), u("#bat44"), u("87"), {}, 12.0}, host).picture.ink,
                  opaqueColour(1, 2, 3));
    }
}

TEST(Presentation, squarePicturesAreDrawingsWhereTheHostColoursThem)
{
    struct Row
    {
        HostShape shape;
        const char* title;
        const char* image;
        Carrier carrier;
    };
    constexpr Row rows[] = {{HostShape::Square, "87.0%", "#bat44", Carrier::Drawing},
                            {HostShape::Square, "87.0%", "", Carrier::Drawing},
                            {HostShape::Label, "87.0%", "#bat44", Carrier::Drawing},
                            {HostShape::Label, "87.0%", "", Carrier::Pixels},
                            {HostShape::Wide, "87.0%", "#bat44", Carrier::Pixels},
                            {HostShape::Wide, "", "#bat44", Carrier::Drawing}};
    HostTraits host;
    host.coloursDrawings = true;
    for (const Row& row : rows) {
        host.shape = row.shape;
        EXPECT_EQ(present({u(row.title), u(row.image), u("87"), {}, 12.0}, host).carrier, row.carrier)
            << row.title << row.image;
    }
}

TEST(Presentation, otherHostsGetPixelsOrFilesOfThem)
{
    const ItemContents contents{u("87.0%"), u("#bat44"), u("87"), {}, 12.0};
    EXPECT_EQ(present(contents, squareHost).carrier, Carrier::Pixels);
    EXPECT_EQ(present(contents, {HostShape::Label, true, true}).carrier, Carrier::File);
}

TEST(Presentation, pictureComesInAllHeightsWhereThereIsNoLabel)
{
    HostTraits host = wideHost;
    EXPECT_FALSE(present({u("87.0%"), {}, {}, {}, 12.0}, host).picture.inAllHeights);
    host.labelHidesIcon = true;
    EXPECT_TRUE(present({u("87.0%"), {}, {}, {}, 12.0}, host).picture.inAllHeights);
}

TEST(Presentation, noLabelWhereThePersonWantsNone)
{
    const Presentation presented =
        present({u("87.0%"), u("#bat34"), {}, {}, 12.0}, {HostShape::Square, false});
    EXPECT_EQ(presented.label, QString());
    EXPECT_EQ(presented.labelGuide, QString());
}

TEST(Presentation, fontFamilyMattersOnlyWhereTextIsDrawn)
{
    const ItemContents withIcon{u("87.0%"), u("#bat34"), u("87"), {}, 12.0};
    const ItemContents without{u("87.0%"), {}, u("87"), {}, 12.0};
    EXPECT_EQ(present(withIcon, squareHost, u("Sans")), present(withIcon, squareHost, u("Serif")));
    EXPECT_EQ(present(without, labelHost, u("Sans")), present(without, labelHost, u("Serif")));
    EXPECT_EQ(present(without, squareHost, u("Sans")).picture.fontFamily, u("Sans"));
    EXPECT_EQ(present(withIcon, wideHost, u("Sans")).picture.fontFamily, u("Sans"));
}

TEST(Presentation, fontSizeMattersOnlyWhereTextIsDrawn)
{
    const ItemContents small{u("87.0%"), u("#bat34"), {}, {}, 12.0};
    const ItemContents large{u("87.0%"), u("#bat34"), {}, {}, 14.0};
    EXPECT_EQ(present(small, squareHost), present(large, squareHost));
    EXPECT_NE(present(small, wideHost), present(large, wideHost));
}

} // namespace
} // namespace quindle
