#include "platform/linux/windows/PortalWishes.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct WishCase
{
    const char* what;
    QVariantMap shared; ///< org.freedesktop.appearance
    QVariantMap gtk;    ///< org.gnome.desktop.interface
    DesktopWishes expected;
};

QVariantMap one(const char* key, const QVariant& value)
{
    return {{QLatin1String(key), value}};
}

TEST(PortalWishes, AreWhatAllDesktopsSayElseWhatGtkSays)
{
    constexpr DesktopWishes none;
    constexpr DesktopWishes dark{.isDark = true};
    constexpr DesktopWishes strong{.hasStrongContrast = true};
    constexpr DesktopWishes still{.isStill = true};
    const QString darkTheme = QStringLiteral("Adwaita-dark");
    const WishCase cases[]{
        {"nothing", {}, {}, none},
        {"dark", one("color-scheme", 1U), {}, dark},
        {"light", one("color-scheme", 2U), {}, none},
        {"no preference beside a dark theme", one("color-scheme", 0U), one("gtk-theme", darkTheme), none},
        {"a dark theme alone", {}, one("gtk-theme", darkTheme), dark},
        {"unknown scheme", one("color-scheme", 7U), {}, none},
        {"no number", one("color-scheme", QStringLiteral("dark")), {}, none},
        {"contrast", one("contrast", 1U), {}, strong},
        {"the theme of contrast", {}, one("gtk-theme", QStringLiteral("HighContrast")), strong},
        {"its inverse",
         one("color-scheme", 0U),
         one("gtk-theme", QStringLiteral("HighContrastInverse")),
         {.isDark = true, .hasStrongContrast = true}},
        {"its inverse alone",
         {},
         one("gtk-theme", QStringLiteral("HighContrastInverse")),
         {.isDark = true, .hasStrongContrast = true}},
        {"less motion", one("reduced-motion", 1U), {}, still},
        {"no animations", {}, one("enable-animations", false), still},
        {"animations", one("reduced-motion", 0U), one("enable-animations", true), none},
    };
    for (const WishCase& row : cases) {
        const DesktopWishes wishes = wishesFrom({{QStringLiteral("org.freedesktop.appearance"), row.shared},
                                                 {QStringLiteral("org.gnome.desktop.interface"), row.gtk}});
        EXPECT_EQ(wishes, row.expected) << row.what;
    }
    EXPECT_EQ(wishesFrom({{QStringLiteral("org.gnome.desktop.a11y.interface"), one("high-contrast", true)}}),
              strong);
}

TEST(PortalWishes, DesktopsOfTheToolkitAndChosenThemesHaveColoursOfTheirOwn)
{
    EXPECT_TRUE(leavesColoursToPortal(QStringLiteral("ubuntu:GNOME"), {}));
    EXPECT_TRUE(leavesColoursToPortal(QStringLiteral("XFCE"), "gtk3"));
    EXPECT_TRUE(leavesColoursToPortal(QStringLiteral("sway"), {}));
    EXPECT_TRUE(leavesColoursToPortal(QString(), {}));
    EXPECT_FALSE(leavesColoursToPortal(QStringLiteral("KDE"), {}));
    EXPECT_FALSE(leavesColoursToPortal(QStringLiteral("LXQt"), {}));
    EXPECT_FALSE(leavesColoursToPortal(QStringLiteral("XFCE"), "qt6ct"));
}

} // namespace
