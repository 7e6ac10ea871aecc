#include "platform/recorded/RecordedStatusBar.h"

#include <utility>

namespace quindle {

RecordedStatusItem::RecordedStatusItem(std::shared_ptr<StatusItemRecord> record)
    : m_record(std::move(record))
{
}

void RecordedStatusItem::setTitle(const QString& title)
{
    m_record->title = title;
    // Every one: no host ever sees that the title is first set to "100 %", and then twice.
    m_record->titlesSet.append(title);
}

QString RecordedStatusItem::title() const
{
    return m_record->title;
}

void RecordedStatusItem::setImage(std::shared_ptr<Image> image)
{
    m_record->image = std::move(image);
}

std::shared_ptr<Image> RecordedStatusItem::image() const
{
    return m_record->image;
}

void RecordedStatusItem::setMenuBarFontSize(double points)
{
    m_record->fontSize = points;
}

void RecordedStatusItem::setFallbackText(const QString& text)
{
    m_record->fallbackText = text;
}

void RecordedStatusItem::setToolTipText(const QString& text)
{
    m_record->toolTip = text;
}

void RecordedStatusItem::setMenu(StatusMenu* menu)
{
    m_record->menu = menu;
}

std::unique_ptr<StatusItem> RecordedStatusBar::statusItemWithLength(double length)
{
    // Shared with the item, so that its values can be seen from outside.
    m_lastItem = std::make_shared<StatusItemRecord>();
    m_lastItem->length = length;
    return std::make_unique<RecordedStatusItem>(m_lastItem);
}

} // namespace quindle
