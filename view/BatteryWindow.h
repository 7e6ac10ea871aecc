#pragma once

#include <functional>
#include <map>
#include <vector>

#include <QWidget>

#include "facts/Fact.h"
#include "platform/RunLoop.h"

class QScrollArea;
class QVBoxLayout;

namespace quindle {

class FactsView;
class MainInterface;
class MenuEntry;

/// What opens on a click: the battery view, live, and the menu's entries under it. Deletes itself when it is
/// closed.
class BatteryWindow : public QWidget
{
    Q_OBJECT

public:
    enum class Kind {
        Popup,      ///< beside the pointer, closed by a click elsewhere
        RoundPopup, ///< the same with round corners, for desktops that show translucent windows
        Plain,      ///< an ordinary window of fixed size, for desktops that place windows themselves
    };

    BatteryWindow(MainInterface& interface, Kind kind);

    /// Places it for a click at `anchor` and shows it.
    void open(const QPoint& anchor);

    /// Shows the facts of this moment.
    void updateFacts();

    /// Brings one entry up to date with its row of the menu.
    void updateEntry(int id);

    /// Held until the window goes.
    void setPunctuality(Punctuality punctuality) { m_punctuality = std::move(punctuality); }

    /// Called when the window was closed by a press outside of it.
    void setClosedOutside(std::function<void()> closed) { m_closedOutside = std::move(closed); }

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addScrollArea(QVBoxLayout& layout);
    void setView(FactsView* view);
    void followModels();
    void performClick(FactClick click);
    void addEntries(QVBoxLayout& layout);
    void choose(int id);
    void copyFocusedOrAll();
    void fit();
    bool isPopup() const { return m_kind != Kind::Plain; }

    MainInterface& m_interface;
    Kind m_kind;
    QPoint m_anchor;
    QScrollArea* m_scrollArea = nullptr;
    FactsView* m_view = nullptr;
    std::vector<Fact> m_facts; ///< as they are shown
    bool m_showsBattery = false;
    QWidget* m_menu = nullptr;
    std::map<int, MenuEntry*> m_entries;
    std::function<void()> m_closedOutside;
    Punctuality m_punctuality;
};

} // namespace quindle
