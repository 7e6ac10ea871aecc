#pragma once

#include <functional>
#include <memory>

#include <QObject>

#include "preferences/window/WindowControllers.h"

namespace quindle {

class BoundSettings;
class Bundle;
class DistributedNotificationCenter;
class PaneView;
class ParameterPopover;
class SettingsBinder;
class StatusBarTitle;

namespace Ui {
class GeneralPreferencesController;
}

/// The pane "General": the helper's everyday settings. Each change by the user is stored at once and
/// announced to the other processes exactly once, except for starting at login, which nobody reads from the
/// settings. Main thread only.
class GeneralPreferencesController : public QObject, public QDPreferencesWindowControllerProtocol
{
    Q_OBJECT

public:
    /// What the daily upload would send now, readable; empty where no host is configured to send it to.
    using SentText = std::function<QString()>;

    /// All that is passed in must outlive it.
    GeneralPreferencesController(BoundSettings& settings, const StatusBarTitle& title,
                                 DistributedNotificationCenter& distributedCenter, const Bundle& bundle,
                                 SentText sentText);
    ~GeneralPreferencesController() override;

    /// inherited: without a caller in this program. Fatal: the pane is never made from an archive.
    [[noreturn]] static void initWithCoder();

    QString preferencesIdentifier() const override;
    QString preferencesTitle() const override;
    QIcon preferencesIcon() const override;
    QWidget& view() override;
    void viewWillAppear() override;
    QWidget* initialFirstResponder() override;

    /// Shows every setting as it is stored, and announces nothing. Inside the helper's own bundle the login
    /// item cannot be switched, and the pane says so.
    void setUI();

    void changeTemperatureSetting();
    void setMenuBarText();
    void resetCustomMenuBarText();
    void showIcons();
    void setAutoUpload();
    void setAutoStart(); ///< announces nothing; whether the system accepts it is not checked
    void showParameterPopover(const QWidget& sender);

    /// Shows the present values in the preview and the popover; for every refresh of the status item.
    void refresh();

private:
    void loadView();
    void connectControls();
    void fill();
    void applyHelperOnlyRule();
    void describeStatistics();
    void showSentData();
    void announceChange();

    BoundSettings& m_settings;
    const StatusBarTitle& m_title;
    DistributedNotificationCenter& m_distributedCenter;
    const Bundle& m_bundle;
    SentText m_sentText;
    std::unique_ptr<Ui::GeneralPreferencesController> m_ui;
    std::unique_ptr<PaneView> m_view;
    std::unique_ptr<SettingsBinder> m_binder;
    ParameterPopover* m_parameterPopover = nullptr;
};

} // namespace quindle
