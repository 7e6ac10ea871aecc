#include <utility>

#include <IOKit/ps/IOPowerSources.h>

#include "platform/macos/MacCalls.h"
#include "platform/macos/system/CfValues.h"

namespace quindle {

namespace {

std::vector<QVariantMap> describe(CFTypeRef blob, CFArrayRef list)
{
    std::vector<QVariantMap> sources;
    for (CFIndex index = 0; index < CFArrayGetCount(list); ++index)
        sources.push_back(
            mapFromCf(IOPSGetPowerSourceDescription(blob, CFArrayGetValueAtIndex(list, index))));
    return sources;
}

class SystemPowerSources : public PowerCalls
{
public:
    ~SystemPowerSources() override
    {
        // The loop holds it too, and would go on calling.
        if (m_source)
            CFRunLoopSourceInvalidate(m_source.get());
    }

    std::optional<std::vector<QVariantMap>> sources() override
    {
        const CfOwned<CFTypeRef> blob(IOPSCopyPowerSourcesInfo());
        const CfOwned<CFArrayRef> list(blob ? IOPSCopyPowerSourcesList(blob.get()) : nullptr);
        return list ? std::optional(describe(blob.get(), list.get())) : std::nullopt;
    }

    QVariantMap adapter() override
    {
        const CfOwned<CFDictionaryRef> details(IOPSCopyExternalPowerAdapterDetails());
        return mapFromCf(details.get());
    }

    bool observe(std::function<void()> changed) override
    {
        m_changed = std::move(changed);
        m_source = CfOwned<CFRunLoopSourceRef>(IOPSNotificationCreateRunLoopSource(hear, this));
        if (m_source)
            CFRunLoopAddSource(CFRunLoopGetMain(), m_source.get(), kCFRunLoopCommonModes);
        return static_cast<bool>(m_source);
    }

private:
    static void hear(void* self)
    {
        // The loop has a pool for events alone, of which a program in the background gets none.
        @autoreleasepool {
            static_cast<SystemPowerSources*>(self)->m_changed();
        }
    }

    std::function<void()> m_changed;
    CfOwned<CFRunLoopSourceRef> m_source;
};

} // namespace

std::unique_ptr<PowerCalls> systemPowerSources()
{
    return std::make_unique<SystemPowerSources>();
}

} // namespace quindle
