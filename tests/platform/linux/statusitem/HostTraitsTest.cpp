#include "platform/linux/statusitem/HostTraits.h"

#include <gtest/gtest.h>

namespace quindle {
namespace {

using Shape = HostShape;

struct HostCase
{
    const char* name;
    const char* program;
    const char* commandLine;
    const char* desktop;
    Shape shape;
    bool needsIconFile = false;
    bool showsToolTipTitleOnly = false;
    bool coloursDrawings = false;
    bool writesLabelInIconsPlace = false;
};

class HostTraitsTable : public testing::TestWithParam<HostCase>
{
};

TEST_P(HostTraitsTable, isKnownByProcessThenDesktop)
{
    const HostCase& c = GetParam();
    const HostTraits traits = hostTraits({QString::fromUtf8(c.program), QString::fromUtf8(c.commandLine)},
                                         QString::fromUtf8(c.desktop));
    EXPECT_EQ(traits.shape, c.shape);
    EXPECT_EQ(traits.needsIconFile, c.needsIconFile);
    EXPECT_EQ(traits.showsToolTipTitleOnly, c.showsToolTipTitleOnly);
    EXPECT_EQ(traits.coloursDrawings, c.coloursDrawings);
    EXPECT_EQ(traits.takesLabel, !c.writesLabelInIconsPlace);
}

INSTANTIATE_TEST_SUITE_P(
    Hosts, HostTraitsTable,
    testing::Values(
        HostCase{"gnome", "gnome-shell", "/usr/bin/gnome-shell", "GNOME", Shape::Label, false, false, true},
        HostCase{"mateTray", "notification-area-applet", "", "MATE", Shape::Wide, false, false, false, true},
        HostCase{"mateSecondTray", "mate-panel", "mate-panel", "MATE", Shape::Label},
        HostCase{"indicators", "ayatana-indicator-application-service", "", "MATE", Shape::Label, true},
        HostCase{"xfce", "wrapper-2.0", "/usr/lib/xfce4/panel/wrapper-2.0 libsystray.so 1", "XFCE",
                 Shape::Square},
        HostCase{"xfceSecondTray", "wrapper-2.0", "/usr/lib/xfce4/panel/wrapper-2.0 libsntray.so 1", "XFCE",
                 Shape::Square},
        HostCase{"lxqt", "lxqt-panel", "", "LXQt", Shape::Square, false, true},
        HostCase{"plasma", "kded5", "", "KDE", Shape::Square, false, false, true},
        HostCase{"plasma6", "kded6", "", "KDE", Shape::Square, false, false, true},
        HostCase{"waybar", "waybar", "", "sway", Shape::Wide},
        HostCase{"swaybar", "swaybar", "", "sway", Shape::Square},
        HostCase{"cinnamon", "xapp-sn-watcher", "", "X-Cinnamon", Shape::Wide},
        HostCase{"processBeforeDesktop", "waybar", "", "GNOME", Shape::Wide},
        HostCase{"unreadableProgramReadableArguments", "", "/usr/bin/waybar -c x", "", Shape::Wide},
        HostCase{"hiddenProcessOnGnome", "", "", "ubuntu:GNOME", Shape::Label, false, false, true},
        HostCase{"hiddenProcessOnBudgie", "", "", "Budgie:GNOME", Shape::Square},
        HostCase{"hiddenProcessOnCinnamon", "", "", "X-Cinnamon", Shape::Wide},
        HostCase{"hiddenProcessOnLxqt", "", "", "LXQt", Shape::Square, false, true},
        HostCase{"hiddenProcessOnMate", "", "", "MATE", Shape::Wide, false, false, false, true},
        HostCase{"hiddenProcessOnPlasma", "", "", "KDE", Shape::Square, false, false, true},
        HostCase{"hiddenProcessOnSway", "", "", "sway", Shape::Square},
        HostCase{"unknownProgramKnownDesktop", "some-watcher", "some-watcher", "GNOME", Shape::Label, false,
                 false, true},
        HostCase{"allUnknown", "some-watcher", "some-watcher", "Other", Shape::Square},
        HostCase{"nothing", "", "", "", Shape::Square}),
    [](const auto& row) { return row.param.name; });

TEST(HostTraits, choiceOverridesTheShape)
{
    const HostTraits label{Shape::Label};
    const HostTraits square{Shape::Square};
    EXPECT_EQ(withChoice(square, QStringLiteral("label")), label);
    EXPECT_EQ(withChoice(square, QStringLiteral("auto")), square);
    EXPECT_EQ(withChoice(label, QString()), label);
    EXPECT_EQ(withChoice(label, QStringLiteral("Wide")), label);
}

TEST(HostTraits, noLabelIsChosenThatHidesTheIcon)
{
    HostTraits host{Shape::Wide, false};
    host.labelHidesIcon = true;
    EXPECT_EQ(withChoice(host, QStringLiteral("label")), host);
    EXPECT_EQ(withChoice(host, QStringLiteral("wide")), host);
    EXPECT_EQ(withChoice(host, QStringLiteral("icon")).shape, Shape::Square);
}

TEST(HostTraits, chosenShapesWithoutLabelSendNone)
{
    const HostTraits label{Shape::Label};
    EXPECT_EQ(withChoice(label, QStringLiteral("wide")), (HostTraits{Shape::Wide, false}));
    EXPECT_EQ(withChoice(label, QStringLiteral("icon")), (HostTraits{Shape::Square, false}));
}

TEST(HostTraits, hostThatShowsFilesOnlyHasNoRoomForWideOnes)
{
    const HostTraits files{Shape::Label, true, true};
    EXPECT_EQ(withChoice(files, QStringLiteral("wide")), files);
}

TEST(HostTraits, OnlyGnomeShowsDrawingsInSixteenPixels)
{
    EXPECT_TRUE(hostTraits({QStringLiteral("gnome-shell"), {}}, {}).drawsSmall);
    EXPECT_FALSE(hostTraits({QStringLiteral("kded5"), {}}, {}).drawsSmall);
    EXPECT_FALSE(hostTraits({}, {}).drawsSmall);
}

TEST(HostTraits, AWidePictureBecomesANumberWhereItWouldBeASmudge)
{
    for (const char* program :
         {"wrapper-2.0", "lxqt-panel", "kded5", "gnome-shell", "budgie-panel", "mate-panel"}) {
        const HostTraits host =
            withChoice(hostTraits({QString::fromLatin1(program), {}}, {}), QStringLiteral("wide"));
        EXPECT_EQ(host.shape, HostShape::Square) << program;
        EXPECT_TRUE(host.showsNumber) << program;
        EXPECT_FALSE(host.takesLabel) << program;
    }
    for (const char* program : {"waybar", "notification-area-applet", "xapp-sn-watcher", "somebody-new"}) {
        const HostTraits host =
            withChoice(hostTraits({QString::fromLatin1(program), {}}, {}), QStringLiteral("wide"));
        EXPECT_EQ(host.shape, HostShape::Wide) << program;
        EXPECT_FALSE(host.showsNumber) << program;
    }
    EXPECT_FALSE(
        withChoice(hostTraits({QStringLiteral("lxqt-panel"), {}}, {}), QStringLiteral("icon")).showsNumber);
}

} // namespace
} // namespace quindle
