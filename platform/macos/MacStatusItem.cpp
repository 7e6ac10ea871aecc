#include "platform/macos/MacStatusItem.h"

#include <utility>

#include "platform/Image.h"

namespace quindle {

namespace {

QString imageFile(const QString& resources, const Image* image)
{
    return image ? resources + QStringLiteral("/icons/") + image->name() + QStringLiteral("-symbolic.svg")
                 : QString();
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
    showSoon();
}

void MacStatusItem::setImage(std::shared_ptr<Image> image)
{
    m_image = std::move(image);
    showSoon();
}

void MacStatusItem::setMenuBarFontSize(double points)
{
    m_fontSize = points;
    showSoon();
}

void MacStatusItem::setToolTipText(const QString& text)
{
    m_toolTip = text;
    showSoon();
}

void MacStatusItem::showSoon()
{
    if (!std::exchange(m_isShownSoon, true))
        QMetaObject::invokeMethod(
            &m_turn, [this] { show(); }, Qt::QueuedConnection);
}

void MacStatusItem::show()
{
    m_isShownSoon = false;
    const Shown wanted{.title = m_title,
                       .imageFile = imageFile(m_resources, m_image.get()),
                       // Asked for now: it is set after the image.
                       .imageSize = m_image ? m_image->size() : QSizeF(),
                       .fontSize = m_fontSize,
                       .toolTip = m_toolTip};
    const Shown shown = std::exchange(m_shown, wanted);
    if (wanted.fontSize != shown.fontSize)
        m_calls->setFontSize(wanted.fontSize);
    if (wanted.imageFile != shown.imageFile || wanted.imageSize != shown.imageSize)
        m_calls->setImage(wanted.imageFile, wanted.imageSize);
    if (wanted.title != shown.title)
        m_calls->setTitle(wanted.title);
    // A tool tip that is set again is hidden and shown anew.
    if (wanted.toolTip != shown.toolTip)
        m_calls->setToolTip(wanted.toolTip);
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
