#include "windows/tray/TrayProcess.h"

#include <chrono>
#include <cstdio>
#include <memory>
#include <unistd.h>

#include <QApplication>
#include <QDBusConnection>
#include <QTimer>

#include "windows/tray/HelperListener.h"
#include "windows/tray/TrayIcon.h"

namespace quindle {

namespace {

/// The helper connects within this time, unless it has ended.
constexpr std::chrono::seconds patience(10);

int run()
{
    std::unique_ptr<TrayIcon> icon;
    const HelperListener listener([&icon](const QDBusConnection& helper) {
        icon = std::make_unique<TrayIcon>(helper);
        QObject::connect(icon.get(), &TrayIcon::gone, qApp, &QCoreApplication::quit);
    });
    if (listener.address().isEmpty())
        return 1;
    // The helper reads it from a pipe.
    std::puts(listener.address().toLatin1().constData());
    std::fflush(stdout);
    QTimer::singleShot(patience, qApp, [&icon] {
        if (!icon)
            QCoreApplication::exit(1);
    });
    return QApplication::exec();
}

} // namespace

void runTrayProcess()
{
    const int status = run();
    // Without the libraries' destructors, which are not safe with a D-Bus server.
    ::_exit(status);
}

} // namespace quindle
