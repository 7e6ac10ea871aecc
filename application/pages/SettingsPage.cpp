#include "application/pages/SettingsPage.h"

#include <QVBoxLayout>

#include "preferences/panes/GeneralPreferencesController.h"

namespace quindle {

SettingsPage::SettingsPage(GeneralPreferencesController& general, QWidget* parent)
    : ScrollPage(parent)
    , m_general(general)
{
    setObjectName(QStringLiteral("settingsPage"));
    setAccessibleName(QStringLiteral("Settings"));
    auto* layout = new QVBoxLayout(&content());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&general.view());
    layout->addStretch(1);
}

SettingsPage::~SettingsPage()
{
    // The pane's view is its controller's.
    m_general.view().setParent(nullptr);
}

void SettingsPage::showEvent(QShowEvent* event)
{
    m_general.viewWillAppear();
    ScrollPage::showEvent(event);
}

} // namespace quindle

#include "moc_SettingsPage.cpp"
