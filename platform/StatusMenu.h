#pragma once

#include <functional>
#include <vector>

#include <QString>

namespace quindle {

/// The menu that hangs from the status item, as plain rows. The desktop draws it where it draws menus
/// itself; the battery view's own window shows the action rows under the view. Rows are only ever added: a
/// row that is not wanted is made invisible, because some hosts close an open menu when its layout changes.
/// Main thread only.
class StatusMenu
{
public:
    enum class Kind {
        Fact,      ///< shows a value and cannot be chosen; only in menus that the desktop draws
        Submenu,   ///< opens the rows whose parent it is; only in menus that the desktop draws
        OpenView,  ///< opens the battery view; only in menus that the desktop draws
        Action,    ///< can be chosen
        Separator, ///< a line between groups
    };

    struct Row
    {
        Kind kind = Kind::Action;
        QString text; ///< shown literally: no mnemonic, no markup
        bool visible = true;
        bool enabled = true;          ///< false: shown in grey, and cannot be chosen
        std::function<void()> chosen; ///< what choosing an action row does; nothing where it is empty
        int parent = 0;               ///< the id of the submenu that it is in, which comes before; 0 for none
    };

    /// Adds a row at the end and returns its id: 1 for the first, then counting up.
    /// Observers are not called: rows are added before the menu is shown.
    int addRow(Row row);

    /// The rows in order; the row with id n is at n - 1.
    const std::vector<Row>& rows() const { return m_rows; }

    /// Changes one row; observers are called only when something is different.
    /// An unknown id is ignored.
    void setText(int id, const QString& text);
    void setVisible(int id, bool visible);

    /// Does what choosing the row does; nothing for an unknown id or a row that cannot be chosen.
    void choose(int id) const;

    /// Opens the battery view, or raises it where it is open.
    /// Called for rows of kind OpenView and for further starts of the program.
    void openView() const;

    /// Opens the battery view, or closes it where it is open.
    /// Called for a click on the status item.
    void toggleView() const;

    /// Sets what opens and what toggles the battery view; until then neither does anything.
    void setViewOpener(std::function<void()> opener) { m_viewOpener = std::move(opener); }
    void setViewToggler(std::function<void()> toggler) { m_viewToggler = std::move(toggler); }

    /// Calls `changed` with the id of each row whose text or visibility has changed, before the setter
    /// returns.
    /// An observer cannot be removed, so it has to check itself whether what it refers to is still there.
    void addObserver(std::function<void(int id)> changed);

private:
    Row* find(int id);
    void notify(int id) const;

    std::vector<Row> m_rows;
    std::function<void()> m_viewOpener;
    std::function<void()> m_viewToggler;
    std::vector<std::function<void(int)>> m_observers;
};

} // namespace quindle
