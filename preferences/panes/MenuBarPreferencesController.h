#pragma once

#include <functional>
#include <memory>

#include <QObject>

#include "preferences/window/WindowControllers.h"

namespace quindle {

class BoundSettings;
class PaneView;
class SettingsBinder;
class StatusBarTitle;

namespace Ui {
class MenuBarPreferencesController;
}

/// The pane "Menu Bar": what the status item shows now, the way to the window where that text is written, and
/// the form in which a panel shows it. Main thread only.
class MenuBarPreferencesController : public QObject, public QDPreferencesWindowControllerProtocol
{
    Q_OBJECT

public:
    /// `openMenuBarText` opens the window of the menu bar text. All that is passed in must outlive the pane.
    MenuBarPreferencesController(BoundSettings& settings, StatusBarTitle& title,
                                 std::function<void()> openMenuBarText);
    ~MenuBarPreferencesController() override;

    QString preferencesIdentifier() const override;
    QString preferencesTitle() const override;
    QIcon preferencesIcon() const override;
    QWidget& view() override;
    void viewWillAppear() override;
    QWidget* initialFirstResponder() override;

    /// Shows the present title; for every refresh of the status item.
    void refresh();

private:
    void loadView();
    void changePresentation();

    BoundSettings& m_settings;
    StatusBarTitle& m_title;
    std::function<void()> m_openMenuBarText;
    std::unique_ptr<Ui::MenuBarPreferencesController> m_ui;
    std::unique_ptr<PaneView> m_view;
    std::unique_ptr<SettingsBinder> m_binder;
};

} // namespace quindle
