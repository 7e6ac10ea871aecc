#include <map>
#include <utility>

#include <AppKit/AppKit.h>

#include "platform/macos/MacCalls.h"
#include "platform/macos/system/CocoaText.h"

/// The target of menu items' choices.
@interface QDMenuTarget : NSObject
- (instancetype)initWithFunction:(std::function<void(int)>)chosen;
- (void)choose:(NSMenuItem*)item;
@end

@implementation QDMenuTarget {
    std::function<void(int)> _chosen;
}

- (instancetype)initWithFunction:(std::function<void(int)>)chosen
{
    self = [super init];
    _chosen = std::move(chosen);
    return self;
}

- (void)choose:(NSMenuItem*)item
{
    _chosen(static_cast<int>(item.tag));
}

@end

namespace quindle {

namespace {

void bringUpToDate(NSMenuItem* item, const MenuEntry& entry)
{
    item.title = cocoaText(entry.title);
    item.enabled = entry.isEnabled;
    item.hidden = entry.isHidden;
}

NSMenuItem* itemOf(const MenuEntry& entry, QDMenuTarget* target)
{
    NSMenuItem* const item = entry.isSeparator ? [NSMenuItem separatorItem] : [[NSMenuItem alloc] init];
    item.tag = entry.id;
    item.target = target;
    item.action = @selector(choose:);
    bringUpToDate(item, entry);
    return item;
}

NSMenu* emptyMenu()
{
    NSMenu* const menu = [[NSMenu alloc] init];
    // The entries say themselves whether they can be chosen.
    menu.autoenablesItems = NO;
    return menu;
}

class SystemStatusItem : public StatusItemCalls
{
public:
    explicit SystemStatusItem(double length)
        : m_item([[NSStatusBar systemStatusBar] statusItemWithLength:length])
    {
        // Before the title, whichever way the language runs.
        m_item.button.imagePosition = NSImageLeading;
    }
    ~SystemStatusItem() override { [[NSStatusBar systemStatusBar] removeStatusItem:m_item]; }

    void setTitle(const QString& title) override { m_item.button.title = cocoaText(title); }

    void setImage(const QString& file, QSizeF size) override
    {
        NSImage* const image = [[NSImage alloc] initWithContentsOfFile:cocoaText(file)];
        [image setTemplate:YES];
        // Else as large as the drawing.
        if (!size.isEmpty())
            image.size = {size.width(), size.height()};
        m_item.button.image = image;
    }

    void setFontSize(double points) override { m_item.button.font = [NSFont menuBarFontOfSize:points]; }
    void setToolTip(const QString& text) override { m_item.button.toolTip = cocoaText(text); }

    void setMenu(const std::vector<MenuEntry>& entries, std::function<void(int id)> chosen) override
    {
        m_target = [[QDMenuTarget alloc] initWithFunction:std::move(chosen)];
        m_items.clear();
        m_menus = {{0, emptyMenu()}};
        for (const MenuEntry& entry : entries)
            add(entry);
        m_item.menu = entries.empty() ? nil : m_menus.at(0);
    }

    void updateEntry(const MenuEntry& entry) override
    {
        if (const auto found = m_items.find(entry.id); found != m_items.end())
            bringUpToDate(found->second, entry);
    }

private:
    void add(const MenuEntry& entry)
    {
        NSMenuItem* const item = itemOf(entry, m_target);
        m_items[entry.id] = item;
        [menuOf(entry.parent) addItem:item];
    }

    /// The menu itself, or the submenu of a row that came before.
    NSMenu* menuOf(int parent)
    {
        const auto [menu, isNew] = m_menus.try_emplace(parent, nil);
        if (isNew)
            m_items.at(parent).submenu = menu->second = emptyMenu();
        return menu->second;
    }

    NSStatusItem* m_item;
    QDMenuTarget* m_target = nil;
    std::map<int, NSMenuItem*> m_items; ///< by the row's id
    std::map<int, NSMenu*> m_menus;     ///< by the id of the row that opens it; 0 is the item's own
};

} // namespace

std::unique_ptr<StatusItemCalls> systemStatusItem(double length)
{
    return std::make_unique<SystemStatusItem>(length);
}

} // namespace quindle
