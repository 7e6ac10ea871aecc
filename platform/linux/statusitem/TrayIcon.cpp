#include "platform/linux/statusitem/TrayIcon.h"

#include <array>

#include <QAction>
#include <QCursor>
#include <QIcon>
#include <QImage>
#include <QMenu>
#include <QPalette>
#include <QPixmap>

#include "platform/StatusMenu.h"
#include "platform/linux/statusitem/StatusPictures.h"
#include "platform/linux/statusitem/StatusTexts.h"

namespace quindle {

namespace {

// An X11 tray gives the icon its room and never scales it, so the usual rooms get pictures of their own.
constexpr std::array traySizes{16, 22, 24, 32, 44, 48};

QImage qtImage(const Pixels& pixels)
{
    const auto* bytes = reinterpret_cast<const uchar*>(pixels.data.data());
    // A copy, because the image would only borrow the pixels.
    return QImage(bytes, pixels.width, pixels.height, QImage::Format_ARGB32_Premultiplied).copy();
}

QIcon trayIcon(const Picture& picture, StatusPictures& pictures)
{
    QIcon icon;
    for (const int size : traySizes)
        icon.addPixmap(QPixmap::fromImage(qtImage(pictures.image(picture, size))));
    return icon;
}

/// Facts are disabled rows, which many styles write in a grey that can hardly be read.
void makeDisabledLegible(QMenu& menu)
{
    constexpr float share = 0.62F; // contrast of about 5 on white and on black
    QPalette palette = menu.palette();
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        QColor quiet = palette.color(QPalette::Active, role);
        quiet.setAlphaF(share);
        palette.setColor(QPalette::Disabled, role, quiet);
    }
    menu.setPalette(palette);
}

QString actionText(const QString& text)
{
    QString label = text;
    return label.replace(QLatin1Char('&'), QLatin1String("&&"));
}

void bringUpToDate(QAction* action, const StatusMenu::Row& row)
{
    action->setVisible(row.visible);
    if (row.kind == StatusMenu::Kind::Separator)
        return;
    action->setText(actionText(row.text));
    action->setEnabled(row.enabled);
}

} // namespace

TrayIcon::TrayIcon(StatusMenu* menu)
    : m_menu(menu)
{
    connect(&m_icon, &QSystemTrayIcon::activated, this, &TrayIcon::activated);
}

TrayIcon::~TrayIcon() = default;

void TrayIcon::show(const Presentation& presentation, StatusPictures& pictures)
{
    // Drawing six sizes costs more than all else of a change, and mostly it is the tool tip that changes.
    if (m_shownPicture != presentation.picture) {
        m_shownPicture = presentation.picture;
        m_icon.setIcon(trayIcon(presentation.picture, pictures));
    }
    m_icon.setToolTip(literalPanelToolTip(presentation.plainToolTip));
    m_icon.show();
}

void TrayIcon::updateMenu()
{
    if (!m_contextMenu || !m_menu)
        return;
    const auto& rows = m_menu->rows();
    for (std::size_t i = 0; i < rows.size() && i < m_actions.size(); ++i)
        bringUpToDate(m_actions[i], rows[i]);
}

void TrayIcon::activated(QSystemTrayIcon::ActivationReason reason)
{
    if (!m_menu)
        return;
    if (reason == QSystemTrayIcon::Context)
        openMenu();
    else if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::MiddleClick)
        m_menu->toggleView();
}

void TrayIcon::openMenu()
{
    m_actions.clear();
    m_contextMenu = std::make_unique<QMenu>();
    makeDisabledLegible(*m_contextMenu);
    int id = 0;
    for (const StatusMenu::Row& row : m_menu->rows()) {
        QAction* action = addRow(row);
        bringUpToDate(action, row);
        connect(action, &QAction::triggered, this, [menu = m_menu, chosen = ++id] { menu->choose(chosen); });
    }
    m_contextMenu->popup(QCursor::pos());
}

QAction* TrayIcon::addRow(const StatusMenu::Row& row)
{
    QMenu* menu =
        row.parent == 0 ? m_contextMenu.get() : m_actions[static_cast<std::size_t>(row.parent) - 1]->menu();
    QAction* action = row.kind == StatusMenu::Kind::Submenu ? menu->addMenu(QString())->menuAction()
                                                            : menu->addAction(QString());
    if (action->menu())
        makeDisabledLegible(*action->menu());
    action->setSeparator(row.kind == StatusMenu::Kind::Separator);
    m_actions.push_back(action);
    return action;
}

} // namespace quindle

#include "moc_TrayIcon.cpp"
