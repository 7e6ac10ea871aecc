#include "platform/StatusMenu.h"

#include <utility>

namespace quindle {

int StatusMenu::addRow(Row row)
{
    m_rows.push_back(std::move(row));
    return static_cast<int>(m_rows.size());
}

void StatusMenu::setText(int id, const QString& text)
{
    Row* row = find(id);
    // Rows are set at every refresh; each change would be a message to the host.
    if (!row || row->text == text)
        return;
    row->text = text;
    notify(id);
}

void StatusMenu::setVisible(int id, bool visible)
{
    Row* row = find(id);
    if (!row || row->visible == visible)
        return;
    row->visible = visible;
    notify(id);
}

void StatusMenu::choose(int id) const
{
    if (id < 1 || id > static_cast<int>(m_rows.size()))
        return;
    const Row& row = m_rows[static_cast<std::size_t>(id) - 1];
    // Hosts are other processes, and may choose any row.
    if (!row.enabled)
        return;
    if (row.kind == Kind::OpenView)
        openView();
    else if (row.kind == Kind::Action && row.chosen)
        row.chosen();
}

void StatusMenu::openView() const
{
    if (m_viewOpener)
        m_viewOpener();
}

void StatusMenu::toggleView() const
{
    if (m_viewToggler)
        m_viewToggler();
}

void StatusMenu::addObserver(std::function<void(int id)> changed)
{
    m_observers.push_back(std::move(changed));
}

StatusMenu::Row* StatusMenu::find(int id)
{
    if (id < 1 || id > static_cast<int>(m_rows.size()))
        return nullptr;
    return &m_rows[static_cast<std::size_t>(id) - 1];
}

void StatusMenu::notify(int id) const
{
    for (const auto& changed : m_observers)
        changed(id);
}

} // namespace quindle
