#include <QCoreApplication>

#include <AppKit/AppKit.h>

#include "platform/macos/MacCalls.h"
#include "platform/macos/system/CocoaText.h"

namespace quindle {

namespace {

class SystemWorkspace : public OpenCalls
{
public:
    bool exists(const QString& path) override
    {
        return [[NSFileManager defaultManager] fileExistsAtPath:cocoaText(path)];
    }

    bool open(const QString& path) override
    {
        return [[NSWorkspace sharedWorkspace] openURL:[NSURL fileURLWithPath:cocoaText(path)]];
    }
};

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

std::unique_ptr<OpenCalls> systemWorkspace()
{
    return std::make_unique<SystemWorkspace>();
}

std::unique_ptr<Application> systemApplication()
{
    return std::make_unique<SystemApplication>();
}

} // namespace quindle
