#include "platform/linux/statusitem/HostTraits.h"

#include <array>

#include <QStringList>

namespace quindle {

namespace {

constexpr HostTraits squashingLabelHost{.shape = HostShape::Label, .squaresOnly = true};
constexpr HostTraits labelHostWithFiles{.shape = HostShape::Label, .needsIconFile = true};
constexpr HostTraits wideHost{.shape = HostShape::Wide};
constexpr HostTraits squareHost{.shape = HostShape::Square};
constexpr HostTraits budgieHost{.shape = HostShape::Square, .squaresOnly = true};
constexpr HostTraits xfceHost{.shape = HostShape::Square, .escapesToolTipTitle = true, .squaresOnly = true};
constexpr HostTraits lxqtHost{.shape = HostShape::Square, .showsToolTipTitleOnly = true, .squaresOnly = true};
constexpr HostTraits mateHost{.shape = HostShape::Wide, .takesLabel = false, .labelHidesIcon = true};
constexpr HostTraits gnomeHost{.shape = HostShape::Label,
                               .coloursDrawings = true,
                               .drawsSmall = true,
                               .squaresOnly = true,
                               .cutsTallMenus = true};
constexpr HostTraits plasmaHost{.shape = HostShape::Square, .coloursDrawings = true, .squaresOnly = true};

struct ProgramRow
{
    const char16_t* program = nullptr;
    HostTraits traits;
};

constexpr std::array programs{
    ProgramRow{u"ayatana-indicator-application-service", labelHostWithFiles},
    ProgramRow{u"budgie-panel", budgieHost},
    ProgramRow{u"cinnamon", wideHost},
    ProgramRow{u"gnome-shell", gnomeHost},
    ProgramRow{u"indicator-application-service", labelHostWithFiles},
    ProgramRow{u"kded5", plasmaHost},
    ProgramRow{u"kded6", plasmaHost},
    ProgramRow{u"lxqt-panel", lxqtHost},
    ProgramRow{u"mate-panel", squashingLabelHost},
    ProgramRow{u"notification-area-applet", mateHost},
    ProgramRow{u"plasmashell", plasmaHost},
    ProgramRow{u"swaybar", squareHost},
    ProgramRow{u"waybar", wideHost},
    ProgramRow{u"wrapper-2.0", xfceHost}, // Xfce: both of its tray plug-ins show no label
    ProgramRow{u"xapp-sn-watcher", wideHost},
    ProgramRow{u"xfce4-panel", xfceHost},
};

constexpr std::array desktops{
    ProgramRow{u"Budgie", budgieHost},   //
    ProgramRow{u"GNOME", gnomeHost},     //
    ProgramRow{u"KDE", plasmaHost},      //
    ProgramRow{u"LXQt", lxqtHost},       //
    ProgramRow{u"MATE", mateHost},       //
    ProgramRow{u"X-Cinnamon", wideHost}, //
    ProgramRow{u"XFCE", xfceHost},       //
};

template <typename Table>
const HostTraits* findIn(const Table& table, const QString& name)
{
    for (const auto& row : table) {
        if (name == QStringView(row.program))
            return &row.traits;
    }
    return nullptr;
}

QString firstArgumentName(const QString& commandLine)
{
    return commandLine.section(QLatin1Char(' '), 0, 0).section(QLatin1Char('/'), -1);
}

} // namespace

HostTraits hostTraits(const HostProcess& process, const QString& currentDesktop)
{
    if (const HostTraits* traits = findIn(programs, process.program))
        return *traits;
    // A program may be started under another name than its file's.
    if (const HostTraits* traits = findIn(programs, firstArgumentName(process.commandLine)))
        return *traits;
    for (const QString& desktop : currentDesktop.split(QLatin1Char(':'))) {
        if (const HostTraits* traits = findIn(desktops, desktop))
            return *traits;
    }
    // An icon is right everywhere; a title may not be.
    return squareHost;
}

HostTraits withChoice(HostTraits traits, const QString& choice)
{
    if (choice == QLatin1String("label") && !traits.labelHidesIcon) {
        traits.shape = HostShape::Label;
    } else if (choice == QLatin1String("wide") && !traits.needsIconFile) {
        // As much text as there is room for. A host with labels would show a wide picture's text twice.
        traits.shape = traits.squaresOnly ? HostShape::Square : HostShape::Wide;
        traits.showsNumber = traits.squaresOnly;
        traits.takesLabel = false;
    } else if (choice == QLatin1String("icon")) {
        traits.shape = HostShape::Square;
        traits.takesLabel = false;
    }
    return traits;
}

} // namespace quindle
