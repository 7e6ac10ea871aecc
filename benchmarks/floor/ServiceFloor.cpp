// The least a Qt program on the session bus can be: a service with one object and one timer, no display. The
// lower limit of what the helper costs, beside the one of a Qt tray program.

#include <chrono>
#include <cstdio>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QTimer>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QDBusConnection bus = QDBusConnection::sessionBus();
    QObject object;
    object.setObjectName(QStringLiteral("floor"));
    bus.registerObject(QStringLiteral("/Floor"), &object, QDBusConnection::ExportAllProperties);
    bus.registerService(QStringLiteral("com.fernhollow.QuindleFloor"));
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &object,
                     [&object] { object.setObjectName(QStringLiteral("ticked")); });
    timer.start(std::chrono::seconds(10));
    std::puts("ready"); // what its start is timed by
    std::fflush(stdout);
    return QCoreApplication::exec();
}
