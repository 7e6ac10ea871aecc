#pragma once

#include <optional>
#include <vector>

#include <QIcon>
#include <QString>
#include <QStringList>

/// The contents of a preferences window's toolbar, as plain values.
namespace quindle {

class QDPreferencesWindowControllerProtocol;

using PreferencesPanes = std::vector<QDPreferencesWindowControllerProtocol*>;

struct PreferencesToolbarFlags
{
    bool showToolbarSeparator = false;
    bool showToolbarWithSingleViewController = false;
    bool showToolbarItemsAsSegmentedControl = false;
    bool centerToolbarItems = false;
};

enum class ToolbarDisplayMode { Default = 0, IconAndLabel = 1, IconOnly = 2, LabelOnly = 3 };

struct ToolbarConfiguration
{
    QString identifier;
    bool showsBaselineSeparator = false;
    bool allowsUserCustomization = false;
    bool autosavesConfiguration = false;
    ToolbarDisplayMode displayMode = ToolbarDisplayMode::Default;
};

struct ToolbarItem
{
    enum class Kind { Pane, SegmentedControl, FlexibleSpace };

    Kind kind = Kind::Pane;
    QString identifier;
    QString label;
    QString paletteLabel;
    QIcon icon;
    std::optional<QString> toolTip; ///< nothing for a pane that has none
};

QString preferencesToolbarIdentifier();
QString segmentedControlIdentifier();
QString flexibleSpaceIdentifier();

/// Nothing when the window has no toolbar: without panes, and with a single one unless that is wanted.
std::optional<ToolbarConfiguration> toolbarConfiguration(const PreferencesPanes& panes,
                                                         const PreferencesToolbarFlags& flags);

/// The toolbar's items in their order. There can be no others.
QStringList toolbarItemIdentifiers(const PreferencesPanes& panes, const PreferencesToolbarFlags& flags);

/// The items that can be selected: those of panes.
QStringList toolbarSelectableItemIdentifiers(const PreferencesPanes& panes,
                                             const PreferencesToolbarFlags& flags);

/// Nothing for an identifier that is none of the three fixed kinds.
std::optional<ToolbarItem> toolbarItem(const PreferencesPanes& panes, const QString& identifier);

/// Null when no pane has it.
QDPreferencesWindowControllerProtocol* paneWithIdentifier(const PreferencesPanes& panes,
                                                          const QString& identifier);

/// The place of the first pane's item among all items.
qsizetype firstPaneItemIndex(const PreferencesToolbarFlags& flags);

/// Each title with a mark before the first letter that no title before it has taken, so that Alt and that
/// letter chooses it. Letters that no key has, such as Chinese ones, get none. A "&" of the title is shown as
/// it is.
QStringList titlesWithMnemonics(const QStringList& titles);

} // namespace quindle
