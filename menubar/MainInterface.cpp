#include "menubar/MainInterface.h"

#include "menubar/BatteryFacts.h"

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
    const std::size_t titleAndFacts = 1 + factTexts(nullptr).size();
    for (std::size_t i = 0; i < titleAndFacts; ++i)
        m_factRows.push_back(m_statusMenu.addRow({StatusMenu::Kind::Fact, {}, false, false, {}}));
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
    m_statusMenu.addRow({Kind::OpenView, QStringLiteral("Show Battery..."), true, true, {}});
    m_statusMenu.addRow({Kind::Separator, {}, true, true, {}});
    entry(QStringLiteral("Open Application"), &StatusMenuActions::openApplication);
    entry(QStringLiteral("Preferences..."), &StatusMenuActions::openPreferences);
    m_versionItem = m_statusMenu.addRow({Kind::Action, QStringLiteral("Version"), true, false, {}});
    entry(QStringLiteral("Quit"), &StatusMenuActions::quitApp);
}

void MainInterface::updateFacts(const QString& title)
{
    const QObject* mac = m_macObjectController.content();
    std::vector<QString> texts = factTexts(mac);
    const QString noTitle = hasBattery(mac) ? QString() : QStringLiteral("No battery");
    texts.insert(texts.begin(), title.isEmpty() ? noTitle : singleLine(title, longestTitle));

    for (std::size_t i = 0; i < m_factRows.size(); ++i) {
        // A hidden row keeps its text, so that a row that goes is one change and not two.
        if (!texts[i].isEmpty())
            m_statusMenu.setText(m_factRows[i], texts[i]);
        m_statusMenu.setVisible(m_factRows[i], !texts[i].isEmpty());
    }
}

} // namespace quindle
