#include <utility>

#include <IOKit/ps/IOPowerSources.h>

#include "platform/macos/CfValues.h"
#include "platform/macos/MacCalls.h"

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

    void observe(std::function<void()> changed) override
    {
        m_changed = std::move(changed);
        const CfOwned<CFRunLoopSourceRef> source(IOPSNotificationCreateRunLoopSource(
            [](void* context) { static_cast<SystemPowerSources*>(context)->m_changed(); }, this));
        // It stays in the loop for good, as this object does in a program.
        CFRunLoopAddSource(CFRunLoopGetMain(), source.get(), kCFRunLoopCommonModes);
    }

private:
    std::function<void()> m_changed;
};

} // namespace

std::unique_ptr<PowerCalls> systemPowerSources()
{
    return std::make_unique<SystemPowerSources>();
}

} // namespace quindle
