#include "preferences/panes/HelperPreferences.h"

#include <QScreen>

#include "common/FatalError.h"
#include "menubar/MenuBarSettingRule.h"
#include "preferences/panes/BoundSettings.h"
#include "preferences/panes/HelperPreferencesBindings.h"
#include "preferences/panes/HelperPreferencesWindow.h"
#include "preferences/panes/ParameterPopover.h"
#include "preferences/panes/StatusBarTitle.h"
#include "preferences/window/WindowFrame.h"
#include "ui_HelperPreferences.h"

namespace quindle {

namespace {

template <typename Control>
Control& connected(const QPointer<Control>& outlet, QStringView name)
{
    if (!outlet) // inherited: fatal; an interface file that lacks it is a programming error
        fatalError(QStringLiteral("HelperPreferences has no outlet %1").arg(name));
    return *outlet;
}

} // namespace

std::unique_ptr<HelperPreferences>
HelperPreferences::initWithWindow(std::unique_ptr<HelperPreferencesWindow> window, BoundSettings& settings,
                                  StatusBarTitle& delegate)
{
    return std::unique_ptr<HelperPreferences>(new HelperPreferences(std::move(window), settings, delegate));
}

std::unique_ptr<HelperPreferences> HelperPreferences::initWithCoder(BoundSettings& settings,
                                                                    StatusBarTitle& delegate)
{
    // Nothing is decoded: the interface file is compiled in.
    return initWithWindow(nullptr, settings, delegate);
}

HelperPreferences::HelperPreferences(std::unique_ptr<HelperPreferencesWindow> window, BoundSettings& settings,
                                     StatusBarTitle& delegate)
    : m_settings(settings)
    , m_delegate(delegate)
    , m_window(std::move(window))
{
}

HelperPreferences::~HelperPreferences() = default;

HelperPreferencesWindow& HelperPreferences::window()
{
    if (!m_ui)
        loadWindow();
    return *m_window;
}

void HelperPreferences::loadWindow()
{
    if (!m_window)
        m_window = std::make_unique<HelperPreferencesWindow>();
    m_ui = std::make_unique<Ui::HelperPreferences>();
    m_ui->setupUi(m_window.get());
    m_ui->settingsPane->fitToFont();
    m_outlets = {.temperatureMatrix = m_ui->temperatureMatrix,
                 .parameterPopover = new ParameterPopover(m_delegate, *m_ui->customMenuBarTextField),
                 .customMenuBarTextField = m_ui->customMenuBarTextField};
    m_outlets.parameterPopover->setObjectName(QStringLiteral("parameterPopover"));
    // Before the actions: a control's value is stored when its action runs.
    m_bindings = std::make_unique<HelperPreferencesBindings>(*m_ui, *m_window, m_settings, m_delegate);
    connectActions();
    windowDidLoad();
}

void HelperPreferences::connectActions()
{
    const Ui::HelperPreferences* ui = m_ui.get();
    connect(ui->menuBarSettingGroup, &RadioMatrix::clicked, this,
            [this, ui] { setMenuBarSetting(ui->menuBarSettingGroup); });
    connect(ui->temperatureMatrix, &RadioMatrix::clicked, this,
            [this, ui] { setTemperature(ui->temperatureMatrix); });
    connect(ui->customMenuBarTextField, &BoundLineEdit::committed, this,
            [this, ui] { changeMenuBarTemplate(ui->customMenuBarTextField); });
    connect(ui->parametersButton, &QAbstractButton::clicked, this,
            [this, ui] { showParameterPopover(ui->parametersButton); });
    connect(ui->showIconsBox, &BoundCheckBox::switched, this,
            [this, ui] { showIconsInMenuBarClicked(ui->showIconsBox); });
    connect(ui->autoSaveBox, &BoundCheckBox::switched, this, [this, ui] { changeAutoSave(ui->autoSaveBox); });
    connect(ui->runInBackgroundBox, &BoundCheckBox::switched, this,
            [this, ui] { setRunInBackground(ui->runInBackgroundBox); });
    connect(ui->closeButton, &QAbstractButton::clicked, this, [this, ui] { closeWindow(ui->closeButton); });
    // An inserted placeholder counts at once; the field keeps the keyboard, so nothing else would commit it.
    connect(m_outlets.parameterPopover, &ParameterPopover::inserted, ui->customMenuBarTextField,
            &BoundLineEdit::commit);
}

void HelperPreferences::showWindow()
{
    HelperPreferencesWindow& shown = window();
    // Other programs may have changed settings while no window observed them.
    m_settings.reload();
    if (!shown.testAttribute(Qt::WA_Moved)) { // where the user left it, if it was there before
        shown.adjustSize();
        shown.move(centredFrame(shown.frameGeometry().size(), shown.screen()->availableGeometry()).topLeft());
    }
    if (shown.isMinimized()) // showing it leaves it so
        shown.setWindowState(shown.windowState() & ~Qt::WindowMinimized);
    shown.show();
    shown.raise();
    shown.activateWindow();
}

void HelperPreferences::refresh()
{
    if (!m_ui)
        return;
    m_ui->titlePreview->refresh();
    if (m_outlets.parameterPopover)
        m_outlets.parameterPopover->refresh();
}

void HelperPreferences::windowDidLoad()
{
    m_window->setMovableByWindowBackground(true);
    setCustomTextEnabled(m_settings.menuBarSetting() == customTextRow);
}

void HelperPreferences::setCustomTextEnabled(bool enabled)
{
    connected(m_outlets.customMenuBarTextField, u"customMenuBarTextField").setEnabled(enabled);
    // The unit only matters for a text that can have "%t".
    connected(m_outlets.temperatureMatrix, u"temperatureMatrix").setEnabled(enabled);
}

void HelperPreferences::closeWindow(QObject* /*sender*/)
{
    window().close();
}

void HelperPreferences::showParameterPopover(QWidget* sender)
{
    connected(m_outlets.parameterPopover, u"parameterPopover").showRelativeTo(*sender);
}

void HelperPreferences::setMenuBarSetting(RadioMatrix* sender)
{
    setCustomTextEnabled(sender->selectedTag() != standardTitleRow);
    m_delegate.updateStatusBarTitle();
}

void HelperPreferences::setTemperature(RadioMatrix* /*sender*/)
{
    m_delegate.updateStatusBarTitle();
}

void HelperPreferences::showIconsInMenuBarClicked(QAbstractButton* /*sender*/)
{
    m_delegate.updateStatusBarTitle();
}

void HelperPreferences::changeMenuBarTemplate(QLineEdit* /*sender*/)
{
    m_delegate.updateStatusBarTitle();
}

void HelperPreferences::changeAutoSave(QAbstractButton* sender)
{
    // This window's own flag; the upload asks for the shared setting.
    m_settings.setAutoUploadBatteryData(sender->isChecked());
}

void HelperPreferences::setRunInBackground(QAbstractButton* sender)
{
    m_settings.setStartsAtLogin(sender->isChecked());
}

} // namespace quindle

#include "moc_HelperPreferences.cpp"
