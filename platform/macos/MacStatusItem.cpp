#include "platform/macos/MacStatusItem.h"

#include <utility>

#include "platform/Image.h"

namespace quindle {

namespace {

QString imageFile(const QString& resources, const Image& image)
{
    return resources + QStringLiteral("/icons/") + image.name() + QStringLiteral("-symbolic.svg");
}

/// A row that shows a value is grey: it cannot be chosen.
bool isEnabled(const StatusMenu::Row& row)
{
    return row.enabled && row.kind != StatusMenu::Kind::Fact && row.kind != StatusMenu::Kind::Separator;
}

} // namespace

MenuEntry menuEntry(const StatusMenu& menu, int id)
{
    const StatusMenu::Row& row = menu.rows().at(static_cast<std::size_t>(id) - 1);
    return {.id = id,
            .parent = row.parent,
            .title = row.text,
            .isSeparator = row.kind == StatusMenu::Kind::Separator,
            .isEnabled = isEnabled(row),
            .isHidden = !row.visible};
}

MacStatusItem::MacStatusItem(std::unique_ptr<StatusItemCalls> calls, QString resources)
    : m_calls(std::move(calls))
    , m_resources(std::move(resources))
{
}

void MacStatusItem::setTitle(const QString& title)
{
    m_title = title;
    m_calls->setTitle(title);
}

void MacStatusItem::setImage(std::shared_ptr<Image> image)
{
    m_image = std::move(image);
    if (m_image)
        m_calls->setImage(imageFile(m_resources, *m_image), m_image->size(), m_image->isTemplate());
    else
        m_calls->setImage(QString(), QSizeF(), false);
}

void MacStatusItem::setToolTipText(const QString& text)
{
    // A tool tip that is set again is hidden and shown anew.
    if (std::exchange(m_toolTip, text) != text)
        m_calls->setToolTip(text);
}

void MacStatusItem::setMenu(StatusMenu* menu)
{
    if (!menu) {
        m_calls->setMenu({}, {});
        return;
    }
    std::vector<MenuEntry> entries;
    for (int id = 1; id <= static_cast<int>(menu->rows().size()); ++id)
        entries.push_back(menuEntry(*menu, id));
    m_calls->setMenu(entries, [menu](int id) { menu->choose(id); });
    // Observers cannot be removed, so the item may have gone.
    menu->addObserver([menu, calls = std::weak_ptr(m_calls)](int id) {
        if (const auto item = calls.lock())
            item->updateEntry(menuEntry(*menu, id));
    });
}

MacStatusBar::MacStatusBar(Make make, QString resources)
    : m_make(std::move(make))
    , m_resources(std::move(resources))
{
}

std::unique_ptr<StatusItem> MacStatusBar::statusItemWithLength(double length)
{
    return std::make_unique<MacStatusItem>(m_make(length), m_resources);
}

} // namespace quindle
