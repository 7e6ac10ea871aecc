#include "menubar/MainInterface.h"

namespace quindle {

namespace {

// Menus grow as wide as their longest row, and a title may be of any length.
constexpr qsizetype longestTitle = 100;

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

void MainInterface::addFactRows()
{
    const StatusMenu::Row hidden{StatusMenu::Kind::Fact, {}, false, false, {}};
    m_titleRow = m_statusMenu.addRow(hidden);
    for (std::size_t i = 0; i < m_facts.texts().size(); ++i)
        m_factRows.push_back(m_statusMenu.addRow(hidden));
}

void MainInterface::addEntries()
{
    using Kind = StatusMenu::Kind;
    const auto entry = [this](const QString& text, void (StatusMenuActions::*action)()) {
        m_statusMenu.addRow({Kind::Action, text, true, true, [this, action] {
                                 if (m_actions)
                                     (m_actions->*action)();
                             }});
    };
    m_statusMenu.addRow({Kind::Separator, {}, true, true, {}});
    m_statusMenu.addRow({Kind::OpenView, QStringLiteral("Show Battery..."), true, true, {}});
    entry(QStringLiteral("Open Application"), &StatusMenuActions::openApplication);
    entry(QStringLiteral("Preferences..."), &StatusMenuActions::openPreferences);
    entry(QStringLiteral("Menu Bar Text..."), &StatusMenuActions::openMenuBarText);
    m_versionItem = m_statusMenu.addRow({Kind::Action, QStringLiteral("Version"), true, false, {}});
    entry(QStringLiteral("Quit"), &StatusMenuActions::quitApp);
}

void MainInterface::updateFacts(const QString& title)
{
    const QObject* mac = m_macObjectController.content();
    const QString noTitle = hasBattery(mac) ? QString() : QStringLiteral("No battery");
    setFactRow(m_titleRow, title.isEmpty() ? noTitle : singleLine(title, longestTitle));
    m_facts.update(mac);
    for (std::size_t i = 0; i < m_factRows.size(); ++i)
        setFactRow(m_factRows[i], m_facts.texts()[i]);
}

void MainInterface::setFactRow(int id, const QString& text)
{
    if (!text.isEmpty()) // a hidden row keeps its text, so that a row that goes is one change and not two
        m_statusMenu.setText(id, text);
    m_statusMenu.setVisible(id, !text.isEmpty());
}

} // namespace quindle
