#include "preferences/panes/MenuBarPreferencesController.h"

#include <QIcon>

#include "preferences/panes/BoundSettings.h"
#include "preferences/panes/SettingsBinder.h"
#include "preferences/panes/StatusBarTitle.h"
#include "ui_MenuBarPreferencesController.h"

namespace quindle {

MenuBarPreferencesController::MenuBarPreferencesController(BoundSettings& settings, StatusBarTitle& title,
                                                           std::function<void()> openMenuBarText)
    : m_settings(settings)
    , m_title(title)
    , m_openMenuBarText(std::move(openMenuBarText))
{
}

MenuBarPreferencesController::~MenuBarPreferencesController() = default;

QString MenuBarPreferencesController::preferencesIdentifier() const
{
    return QStringLiteral("MenuBar");
}

QString MenuBarPreferencesController::preferencesTitle() const
{
    return tr("Menu Bar");
}

QIcon MenuBarPreferencesController::preferencesIcon() const
{
    return QIcon::fromTheme(QStringLiteral("preferences-desktop"));
}

QWidget& MenuBarPreferencesController::view()
{
    if (!m_view)
        loadView();
    return *m_view;
}

void MenuBarPreferencesController::viewWillAppear()
{
    view();
    m_settings.reload();
    m_binder->fill();
    refresh();
}

QWidget* MenuBarPreferencesController::initialFirstResponder()
{
    view();
    return m_ui->menuBarTextButton;
}

void MenuBarPreferencesController::refresh()
{
    if (m_ui)
        m_ui->titlePreview->refresh();
}

void MenuBarPreferencesController::loadView()
{
    m_view = std::make_unique<PaneView>();
    m_ui = std::make_unique<Ui::MenuBarPreferencesController>();
    m_ui->setupUi(m_view.get());
    m_ui->titlePreview->follow(m_title);
    m_view->fitToFont();
    connect(m_ui->menuBarTextButton, &QPushButton::clicked, this, [this] { m_openMenuBarText(); });
    connect(m_ui->presentationMatrix, &RadioMatrix::clicked, this,
            &MenuBarPreferencesController::changePresentation);
    connect(&m_settings, &BoundSettings::changed, this, &MenuBarPreferencesController::refresh);
    m_binder = std::make_unique<SettingsBinder>(*m_view, m_settings);
    viewWillAppear();
}

// The status item asks for its form when it is refreshed.
void MenuBarPreferencesController::changePresentation()
{
    m_settings.setStatusItemPresentation(m_ui->presentationMatrix->selectedTag());
    m_title.updateStatusBarTitle();
}

} // namespace quindle

#include "moc_MenuBarPreferencesController.cpp"
