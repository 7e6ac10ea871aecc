#include <QCoreApplication>

#include <AppKit/AppKit.h>

#include "platform/macos/MacCalls.h"

namespace quindle {

namespace {

class SystemApplication : public Application
{
public:
    // Queued: the caller, a menu's action, returns into objects that still exist.
    void terminate() override
    {
        QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit,
                                  Qt::QueuedConnection);
    }

    void activateIgnoringOtherApplications() override
    {
        [[NSApplication sharedApplication] activateIgnoringOtherApps:YES];
    }

    bool showsTranslucentWindows() const override { return true; }
};

} // namespace

std::unique_ptr<Application> systemApplication()
{
    return std::make_unique<SystemApplication>();
}

} // namespace quindle
