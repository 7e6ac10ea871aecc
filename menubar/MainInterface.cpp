#include "menubar/MainInterface.h"

#include <algorithm>

#include "common/SingleLine.h"
#include "common/Translation.h"
#include "facts/ValueTexts.h"
#include "settings/CapacityMode.h"

namespace quindle {

namespace {

// Menus grow as wide as their longest row, and a title may be of any length.
constexpr int longestTitle = 100;
constexpr int longestText = 60;

using Kind = StatusMenu::Kind;

/// Cannot be chosen, and is hidden until there is something to show.
StatusMenu::Row factRow(int parent)
{
    return {Kind::Fact, {}, false, false, {}, parent};
}

QString oneLine(const QString& text, int length)
{
    return elided(singleLine(text), length);
}

/// Caption and value with a tab between them, or the only one that is not empty.
QString menuText(const Fact& fact)
{
    if (!fact.shown)
        return {};
    return joined(oneLine(fact.caption, longestText), QStringLiteral("\t"),
                  oneLine(factText(fact, FactPlace::Menu), longestText));
}

} // namespace

MainInterface::MainInterface()
{
    addFactRows();
    addEntries();
}

MainOutlets MainInterface::outlets()
{
    return {&m_menuView,
            &m_noBatteryView,
            &m_macObjectController,
            &m_stateOfChargeProgress,
            &m_stateOfHealthProgress,
            &m_statusMenu,
            m_versionItem};
}

// A row for every fact, by rank: none comes or goes while a desktop shows the menu.
void MainInterface::addFactRows()
{
    const std::vector<Fact> facts = factsFor(FactPlace::Menu, {});
    m_titleRow = m_statusMenu.addRow(factRow(0));
    for (const Fact& fact : facts) {
        const bool isDetail = fact.rank > lastRankOfMenu;
        // The submenu comes before its rows, as a row's parent has to.
        if (isDetail && m_detailsRow == 0)
            m_detailsRow =
                m_statusMenu.addRow({Kind::Submenu, translated("Menu", "Details"), true, true, {}, 0});
        m_factRows.push_back(m_statusMenu.addRow(factRow(isDetail ? m_detailsRow : 0)));
    }
}

void MainInterface::addEntries()
{
    const auto entry = [this](const QString& text, void (StatusMenuActions::*action)()) {
        const auto chosen = [this, action] {
            // The rows are there before the delegate, and may outlive it.
            if (m_actions)
                (m_actions->*action)();
        };
        return m_statusMenu.addRow({Kind::Action, text, true, true, chosen, 0});
    };
    m_statusMenu.addRow({Kind::Separator, {}, true, true, {}, 0});
    m_statusMenu.addRow({Kind::OpenView, translated("Menu", "Show Battery..."), true, true, {}, 0});
    entry(translated("Menu", "Open Application"), &StatusMenuActions::openApplication);
    entry(translated("Menu", "Preferences..."), &StatusMenuActions::openPreferences);
    entry(translated("Menu", "Menu Bar Text..."), &StatusMenuActions::openMenuBarText);
    m_versionItem = m_statusMenu.addRow({Kind::Action, translated("Menu", "Version"), true, false, {}, 0});
    entry(translated("Menu", "Quit"), &StatusMenuActions::quitApp);
}

void MainInterface::updateFacts(const QString& title)
{
    const QDMac* mac = m_macObjectController.content();
    const QString noTitle = mac && mac->Battery() ? QString() : translated("Facts", "No battery");
    setFactRow(m_titleRow, title.isEmpty() ? noTitle : oneLine(title, longestTitle));
    const std::vector<Fact> facts = factsFor(FactPlace::Menu, factSources());
    bool hasDetails = false;
    for (std::size_t i = 0; i < facts.size(); ++i) {
        setFactRow(m_factRows[i], menuText(facts[i]));
        hasDetails = hasDetails || (facts[i].shown && facts[i].rank > lastRankOfMenu);
    }
    m_statusMenu.setVisible(m_detailsRow, hasDetails);
    if (m_factsUpdated)
        m_factsUpdated();
}

FactSources MainInterface::factSources() const
{
    return {.mac = m_macObjectController.content(),
            .powerSources = m_powerSources,
            .showsWattHours = m_ownDefaults && showsWattHours(*m_ownDefaults)};
}

void MainInterface::performClick(FactClick click)
{
    QDMac* mac = m_macObjectController.content();
    if (!mac)
        return;
    if (click == FactClick::Capacity && m_ownDefaults) {
        toggleWattHours(*m_ownDefaults);
        if (m_factsUpdated)
            m_factsUpdated(); // no model has changed and announced it
    }
    quindle::performClick(click, *mac);
    if (m_clicked)
        m_clicked(click);
}

void MainInterface::setFactRow(int id, const QString& text)
{
    if (!text.isEmpty()) // a hidden row keeps its text, so that a row that goes is one change and not two
        m_statusMenu.setText(id, text);
    m_statusMenu.setVisible(id, !text.isEmpty());
}

} // namespace quindle
