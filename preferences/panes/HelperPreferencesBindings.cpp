#include "preferences/panes/HelperPreferencesBindings.h"

#include "menubar/MenuBarSettingRule.h"
#include "preferences/panes/BoundSettings.h"
#include "preferences/panes/HelperPreferencesWindow.h"
#include "preferences/panes/StatusBarTitle.h"
#include "ui_HelperPreferences.h"

namespace quindle {

HelperPreferencesBindings::HelperPreferencesBindings(const Ui::HelperPreferences& ui,
                                                     HelperPreferencesWindow& window, BoundSettings& settings,
                                                     StatusBarTitle& title)
    : m_settings(settings)
    , m_binder(window, settings)
{
    ui.titlePreview->follow(*ui.customMenuBarTextField, title);
    connect(&settings, &BoundSettings::changed, ui.titlePreview, &TitlePreview::refresh);
    storeChanges(ui, title);
    for (QWidget* widget : std::initializer_list<QWidget*>{ui.customMenuBarTextField, ui.temperatureMatrix,
                                                           ui.parametersButton})
        followMenuBarSetting(widget);
}

void HelperPreferencesBindings::storeChanges(const Ui::HelperPreferences& ui, StatusBarTitle& title)
{
    connect(ui.menuBarSettingGroup, &RadioMatrix::clicked, this,
            [this, group = ui.menuBarSettingGroup] { m_settings.setMenuBarSetting(group->selectedTag()); });
    connect(ui.customMenuBarTextField, &BoundLineEdit::committed, this,
            [this, field = ui.customMenuBarTextField] { m_settings.setCustomStatusBar(field->text()); });
    connect(ui.temperatureMatrix, &RadioMatrix::clicked, this, [this, &title, matrix = ui.temperatureMatrix] {
        m_settings.setTemperatureOfTitleAndView(matrix->selectedTag());
        title.reloadBattery();
    });
    connect(ui.showIconsBox, &BoundCheckBox::switched, this,
            [this](bool checked) { m_settings.setShowsIconsInMenuBar(checked); });
}

// The setting may change elsewhere while the window is open.
void HelperPreferencesBindings::followMenuBarSetting(QWidget* widget)
{
    const auto follow = [this, widget] { widget->setEnabled(m_settings.menuBarSetting() == customTextRow); };
    connect(&m_settings, &BoundSettings::changed, widget, follow);
    follow();
}

} // namespace quindle

#include "moc_HelperPreferencesBindings.cpp"
