// The least a Qt tray program can be: an icon, a tool tip, a menu of one entry, no timer. What the helper
// costs is compared with what this costs.

#include <QApplication>
#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QSystemTrayIcon>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QPixmap picture(22, 22);
    picture.fill(Qt::darkGreen);
    QMenu menu;
    menu.addAction(QStringLiteral("Quit"), &application, &QApplication::quit);
    QSystemTrayIcon tray{QIcon(picture)};
    tray.setToolTip(QStringLiteral("floor"));
    tray.setContextMenu(&menu);
    tray.show();
    return QApplication::exec();
}
