#include <AppKit/AppKit.h>

#include "platform/macos/CocoaText.h"
#include "platform/macos/MacCalls.h"

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

} // namespace

std::unique_ptr<OpenCalls> systemWorkspace()
{
    return std::make_unique<SystemWorkspace>();
}

} // namespace quindle
