#pragma once

#include <memory>

#include <QObject>
#include <QPointer>

#include "preferences/window/WindowControllers.h"

class QAbstractButton;
class QLineEdit;

namespace quindle {

class BoundSettings;
class HelperPreferencesBindings;
class HelperPreferencesWindow;
class ParameterPopover;
class RadioMatrix;
class StatusBarTitle;

namespace Ui {
class HelperPreferences;
}

/// What the interface connects to the window controller, which keeps none of it alive. One that is missing
/// when an action needs it is fatal.
struct HelperPreferencesOutlets
{
    QPointer<RadioMatrix> temperatureMatrix;
    QPointer<ParameterPopover> parameterPopover;
    QPointer<QLineEdit> customMenuBarTextField;
};

/// The controller of the helper's own window: what the menu bar shows. inherited: the name, which interface
/// files write; it holds no settings, those are ApplicationPreferences. Its actions are the side effects of
/// the controls only; the values are stored before, by the bindings of its interface. Nothing is announced to
/// other processes. The window and everything in it is made when it is first needed. Main thread only.
class HelperPreferences : public QObject, public WindowController
{
    Q_OBJECT

public:
    /// Puts the interface into that window; null for one of its own. Takes the delegate that the application
    /// has now. Settings and delegate must outlive the controller.
    static std::unique_ptr<HelperPreferences> initWithWindow(std::unique_ptr<HelperPreferencesWindow> window,
                                                             BoundSettings& settings,
                                                             StatusBarTitle& delegate);

    /// inherited: as made by an interface that stores it; the window comes later.
    static std::unique_ptr<HelperPreferences> initWithCoder(BoundSettings& settings,
                                                            StatusBarTitle& delegate);

    ~HelperPreferences() override;

    StatusBarTitle& delegate() const { return m_delegate; }
    HelperPreferencesOutlets& outlets() { return m_outlets; }

    /// The window; loads its interface when it is asked for the first time.
    HelperPreferencesWindow& window();

    /// With the current settings.
    void showWindow() override;

    /// Shows the present values in the preview and the popover; for every refresh of the status item.
    void refresh();

    /// Makes the window movable by its background, and the custom text's controls usable when 1 is stored.
    void windowDidLoad();

    // The actions. Each gets the control that sends it.
    void closeWindow(QObject* sender);
    void showParameterPopover(QWidget* sender);
    void setMenuBarSetting(RadioMatrix* sender);
    void setTemperature(RadioMatrix* sender);
    void showIconsInMenuBarClicked(QAbstractButton* sender);
    void changeMenuBarTemplate(QLineEdit* sender);
    void changeAutoSave(QAbstractButton* sender);
    void setRunInBackground(QAbstractButton* sender);

private:
    HelperPreferences(std::unique_ptr<HelperPreferencesWindow> window, BoundSettings& settings,
                      StatusBarTitle& delegate);

    void loadWindow();
    void connectActions();
    void setCustomTextEnabled(bool enabled);

    BoundSettings& m_settings;
    StatusBarTitle& m_delegate;
    HelperPreferencesOutlets m_outlets;
    std::unique_ptr<HelperPreferencesWindow> m_window;
    std::unique_ptr<Ui::HelperPreferences> m_ui;
    std::unique_ptr<HelperPreferencesBindings> m_bindings;
};

} // namespace quindle
