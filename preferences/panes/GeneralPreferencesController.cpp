#include "preferences/panes/GeneralPreferencesController.h"

#include <QIcon>

#include "common/FatalError.h"
#include "menubar/TitleTemplate.h"
#include "platform/Bundle.h"
#include "platform/NotificationCenter.h"
#include "preferences/panes/BoundSettings.h"
#include "preferences/panes/ParameterPopover.h"
#include "preferences/panes/SentDataDialog.h"
#include "preferences/panes/SettingsBinder.h"
#include "settings/StatisticsHost.h"
#include "ui_GeneralPreferencesController.h"

namespace quindle {

namespace {

// inherited: with a blank, like the folder that the helper is installed in; the bundle's own name has a
// hyphen.
bool runsInsideHelper(const QString& bundlePath)
{
    return bundlePath.contains(QStringLiteral("Quindle Helper"));
}

} // namespace

GeneralPreferencesController::GeneralPreferencesController(BoundSettings& settings,
                                                           const StatusBarTitle& title,
                                                           DistributedNotificationCenter& distributedCenter,
                                                           const Bundle& bundle, SentText sentText)
    : m_settings(settings)
    , m_title(title)
    , m_distributedCenter(distributedCenter)
    , m_bundle(bundle)
    , m_sentText(std::move(sentText))
{
}

GeneralPreferencesController::~GeneralPreferencesController() = default;

void GeneralPreferencesController::initWithCoder()
{
    fatalError(u"Method not implemented");
}

QString GeneralPreferencesController::preferencesIdentifier() const
{
    return QStringLiteral("General");
}

QString GeneralPreferencesController::preferencesTitle() const
{
    return tr("General");
}

QIcon GeneralPreferencesController::preferencesIcon() const
{
    return QIcon::fromTheme(QStringLiteral("preferences-system"));
}

QWidget& GeneralPreferencesController::view()
{
    if (!m_view)
        loadView();
    return *m_view;
}

QWidget* GeneralPreferencesController::initialFirstResponder()
{
    view();
    return m_ui->customMenuBarTextField;
}

void GeneralPreferencesController::viewWillAppear()
{
    setUI();
}

void GeneralPreferencesController::loadView()
{
    m_view = std::make_unique<PaneView>();
    m_ui = std::make_unique<Ui::GeneralPreferencesController>();
    m_ui->setupUi(m_view.get());
    m_ui->titlePreview->follow(*m_ui->customMenuBarTextField, m_title);
    m_view->fitToFont();
    connectControls();
    m_binder = std::make_unique<SettingsBinder>(*m_view, m_settings);
    applyHelperOnlyRule();
    describeStatistics();
}

void GeneralPreferencesController::connectControls()
{
    using Controller = GeneralPreferencesController;
    connect(m_ui->customMenuBarTextField, &BoundLineEdit::committed, this, &Controller::setMenuBarText);
    connect(m_ui->parametersButton, &QPushButton::clicked, this,
            [this] { showParameterPopover(*m_ui->parametersButton); });
    connect(m_ui->resetButton, &QPushButton::clicked, this, &Controller::resetCustomMenuBarText);
    connect(m_ui->temperatureMatrix, &RadioMatrix::clicked, this, &Controller::changeTemperatureSetting);
    connect(m_ui->showIconsCheckbox, &BoundCheckBox::switched, this, &Controller::showIcons);
    connect(m_ui->autoUploadCheckbox, &BoundCheckBox::switched, this, &Controller::setAutoUpload);
    connect(m_ui->sentDataButton, &LinkButton::clicked, this, &Controller::showSentData);
    connect(m_ui->launchAtStartupCheckbox, &BoundCheckBox::switched, this, &Controller::setAutoStart);
    connect(&m_settings, &BoundSettings::changed, this, &Controller::refresh);
}

void GeneralPreferencesController::setUI()
{
    view();
    m_settings.reload();
    fill();
}

void GeneralPreferencesController::fill()
{
    m_binder->fill();
    applyHelperOnlyRule();
    describeStatistics();
}

// The switch stays usable: a service that is configured later finds what was chosen.
void GeneralPreferencesController::describeStatistics()
{
    const QString description = statisticsHost(m_bundle).isEmpty()
                                    ? tr("Nothing can be sent: no statistics service is configured.")
                                    : tr("The serial number is masked.");
    m_ui->statisticsDescription->setText(description);
    m_ui->autoUploadCheckbox->setAccessibleDescription(description);
}

void GeneralPreferencesController::applyHelperOnlyRule()
{
    const bool helperOnly = runsInsideHelper(m_bundle.path());
    const QString description = helperOnly
                                    ? tr("This option can only be disabled in main application. Run it "
                                         "via \"Open Application\" from the menu")
                                    : QString();
    m_ui->launchAtStartupDescription->setText(description);
    m_ui->launchAtStartupDescription->setVisible(helperOnly);
    m_ui->launchAtStartupWarningImage->setVisible(helperOnly);
    // Only the main application may switch it there, as the text says.
    m_ui->launchAtStartupCheckbox->setEnabled(!helperOnly);
    m_ui->launchAtStartupCheckbox->setAccessibleDescription(description);
}

void GeneralPreferencesController::changeTemperatureSetting()
{
    m_settings.setTemperatureSettingIndex(m_ui->temperatureMatrix->selectedTag());
    announceChange();
}

void GeneralPreferencesController::setMenuBarText()
{
    m_settings.setCustomStatusBar(m_ui->customMenuBarTextField->text());
    announceChange();
}

void GeneralPreferencesController::resetCustomMenuBarText()
{
    // By hand: a text that is being typed is not replaced by what is stored.
    m_ui->customMenuBarTextField->setText(defaultTitleTemplate());
    m_settings.setCustomStatusBar(defaultTitleTemplate());
    announceChange();
}

void GeneralPreferencesController::showIcons()
{
    m_settings.setShowsIconsInMenuBar(m_ui->showIconsCheckbox->isChecked());
    announceChange();
}

void GeneralPreferencesController::setAutoUpload()
{
    m_settings.setAutoUpload(m_ui->autoUploadCheckbox->isChecked());
    announceChange();
}

void GeneralPreferencesController::setAutoStart()
{
    // Not announced: it is an entry in the session that is always read anew, not a setting.
    m_settings.setStartsAtLogin(m_ui->launchAtStartupCheckbox->isChecked());
}

void GeneralPreferencesController::showParameterPopover(const QWidget& sender)
{
    BoundLineEdit* field = m_ui->customMenuBarTextField;
    if (!m_parameterPopover) {
        m_parameterPopover = new ParameterPopover(m_title, *field);
        m_parameterPopover->setObjectName(QStringLiteral("parameterPopover"));
        // Immediately: the field keeps the keyboard, so nothing else would commit it.
        connect(m_parameterPopover, &ParameterPopover::inserted, field, &BoundLineEdit::commit);
    }
    m_parameterPopover->showRelativeTo(sender);
}

void GeneralPreferencesController::refresh()
{
    if (m_ui)
        m_ui->titlePreview->refresh();
    if (m_parameterPopover)
        m_parameterPopover->refresh();
}

void GeneralPreferencesController::showSentData()
{
    auto* dialog = new SentDataDialog(m_sentText(), m_view.get());
    // It holds a snapshot of this moment; the next one is made anew.
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void GeneralPreferencesController::announceChange()
{
    m_distributedCenter.post(QStringLiteral("SettingsChangedNotification"));
}

} // namespace quindle

#include "moc_GeneralPreferencesController.cpp"
