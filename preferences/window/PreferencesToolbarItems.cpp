#include "preferences/window/PreferencesToolbarItems.h"

#include "preferences/window/WindowControllers.h"

namespace quindle {

namespace {

QStringList paneIdentifiers(const PreferencesPanes& panes)
{
    QStringList identifiers;
    for (const QDPreferencesWindowControllerProtocol* pane : panes)
        identifiers.append(pane->preferencesIdentifier());
    return identifiers;
}

ToolbarItem paneItem(const QDPreferencesWindowControllerProtocol& pane)
{
    const QString title = pane.preferencesTitle();
    return {ToolbarItem::Kind::Pane, pane.preferencesIdentifier(), title, title,
            pane.preferencesIcon(),  pane.preferencesToolTip()};
}

/// Whether the keyboard has a key for it: Chinese, Japanese and Korean text is composed of several.
bool hasKey(QChar character)
{
    switch (character.script()) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Hangul:
    case QChar::Script_Bopomofo:
        return false;
    default:
        return character.isLetterOrNumber() && character.category() != QChar::Letter_Modifier;
    }
}

} // namespace

QString preferencesToolbarIdentifier()
{
    return QStringLiteral("PreferencesMainToolbar");
}

QString segmentedControlIdentifier()
{
    return QStringLiteral("PreferencesToolbarSegmentedControl");
}

QString flexibleSpaceIdentifier()
{
    return QStringLiteral("FlexibleSpace");
}

std::optional<ToolbarConfiguration> toolbarConfiguration(const PreferencesPanes& panes,
                                                         const PreferencesToolbarFlags& flags)
{
    // A toolbar without a choice only takes room.
    if (panes.empty() || (panes.size() == 1 && !flags.showToolbarWithSingleViewController))
        return std::nullopt;
    // A segmented control is one item: there is nothing to arrange, and nothing to remember.
    const bool segmented = flags.showToolbarItemsAsSegmentedControl;
    return ToolbarConfiguration{preferencesToolbarIdentifier(), flags.showToolbarSeparator, !segmented,
                                !segmented,
                                segmented ? ToolbarDisplayMode::IconOnly : ToolbarDisplayMode::Default};
}

QStringList toolbarItemIdentifiers(const PreferencesPanes& panes, const PreferencesToolbarFlags& flags)
{
    QStringList identifiers = flags.showToolbarItemsAsSegmentedControl
                                  ? QStringList{segmentedControlIdentifier()}
                                  : paneIdentifiers(panes);
    if (flags.centerToolbarItems) {
        identifiers.prepend(flexibleSpaceIdentifier());
        identifiers.append(flexibleSpaceIdentifier());
    }
    return identifiers;
}

QStringList toolbarSelectableItemIdentifiers(const PreferencesPanes& panes,
                                             const PreferencesToolbarFlags& flags)
{
    // A segmented control marks its segment itself.
    return flags.showToolbarItemsAsSegmentedControl ? QStringList() : paneIdentifiers(panes);
}

std::optional<ToolbarItem> toolbarItem(const PreferencesPanes& panes, const QString& identifier)
{
    if (const auto* pane = paneWithIdentifier(panes, identifier))
        return paneItem(*pane);
    ToolbarItem item;
    item.identifier = identifier;
    if (identifier == segmentedControlIdentifier())
        item.kind = ToolbarItem::Kind::SegmentedControl;
    else if (identifier == flexibleSpaceIdentifier())
        item.kind = ToolbarItem::Kind::FlexibleSpace;
    else
        return std::nullopt;
    return item;
}

QDPreferencesWindowControllerProtocol* paneWithIdentifier(const PreferencesPanes& panes,
                                                          const QString& identifier)
{
    for (QDPreferencesWindowControllerProtocol* pane : panes)
        if (pane->preferencesIdentifier() == identifier)
            return pane;
    return nullptr;
}

qsizetype firstPaneItemIndex(const PreferencesToolbarFlags& flags)
{
    return flags.centerToolbarItems ? 1 : 0;
}

QStringList titlesWithMnemonics(const QStringList& titles)
{
    QString taken;
    QStringList marked;
    for (const QString& title : titles) {
        QString text;
        bool isMarked = false;
        for (const QChar character : title) {
            if (!isMarked && hasKey(character) && !taken.contains(character, Qt::CaseInsensitive)) {
                isMarked = true;
                taken += character;
                text += QLatin1Char('&');
            } else if (character == QLatin1Char('&')) {
                // A single one would mark the next letter.
                text += QLatin1Char('&');
            }
            text += character;
        }
        marked.append(text);
    }
    return marked;
}

} // namespace quindle
