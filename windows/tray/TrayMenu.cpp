#include "windows/tray/TrayMenu.h"

#include <utility>

#include <QAction>
#include <QDBusArgument>
#include <QEvent>
#include <QPalette>

namespace quindle {

namespace {

/// From the protocol's mnemonics, which the labels do not have, to the toolkit's.
QString actionText(const QVariantMap& properties)
{
    QString label = properties.value(QStringLiteral("label")).toString();
    label.replace(QLatin1String("__"), QLatin1String("_"));
    return label.replace(QLatin1Char('&'), QLatin1String("&&"));
}

/// Missing properties have the protocol's default values.
void bringUpToDate(QAction* action, const QVariantMap& properties)
{
    action->setVisible(properties.value(QStringLiteral("visible"), true).toBool());
    if (action->isSeparator())
        return;
    action->setText(actionText(properties));
    action->setEnabled(properties.value(QStringLiteral("enabled"), true).toBool());
}

bool isSeparator(const MenuNode& row)
{
    return row.properties.value(QStringLiteral("type")) == QLatin1String("separator");
}

bool isSubmenu(const MenuNode& row)
{
    return row.properties.value(QStringLiteral("children-display")) == QLatin1String("submenu");
}

} // namespace

LegibleMenu::LegibleMenu(QWidget* parent)
    : QMenu(parent)
{
    makeDisabledLegible();
}

void LegibleMenu::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        makeDisabledLegible();
    QMenu::changeEvent(event);
}

/// Facts are disabled rows, which many styles draw in a grey that is hard to read.
void LegibleMenu::makeDisabledLegible()
{
    constexpr float share = 0.62F; // contrast of about 5 on white and on black
    QPalette own;                  // the other colours are the desktop's
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        QColor quiet = palette().color(QPalette::Active, role);
        quiet.setAlphaF(share);
        own.setColor(QPalette::Disabled, role, quiet);
    }
    setPalette(own);
}

TrayMenu::TrayMenu(const MenuNode& root, std::function<void(int id)> chosen)
    : m_chosen(std::move(chosen))
{
    addRows(m_menu, root);
}

void TrayMenu::addRows(QMenu& menu, const MenuNode& parent)
{
    for (const QDBusVariant& child : parent.children) {
        const auto row = qdbus_cast<MenuNode>(child.variant());
        QAction* action = addRow(menu, row);
        bringUpToDate(action, row.properties);
        m_actions[row.id] = action;
        QObject::connect(action, &QAction::triggered, &m_menu, [this, id = row.id] { m_chosen(id); });
    }
}

QAction* TrayMenu::addRow(QMenu& menu, const MenuNode& row)
{
    if (isSeparator(row))
        return menu.addSeparator();
    if (!isSubmenu(row))
        return menu.addAction(QString());
    auto* submenu = new LegibleMenu(&menu);
    addRows(*submenu, row);
    return menu.addMenu(submenu);
}

void TrayMenu::update(const QList<MenuRowProperties>& rows)
{
    for (const MenuRowProperties& row : rows) {
        if (const auto found = m_actions.find(row.id); found != m_actions.end())
            bringUpToDate(found->second, row.properties);
    }
}

} // namespace quindle
