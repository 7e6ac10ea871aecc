#include <IOKit/IOKitLib.h>

#include "platform/macos/MacCalls.h"
#include "platform/macos/system/CfValues.h"

namespace quindle {

namespace {

class SystemRegistry : public RegistryCalls
{
public:
    // What matches is consumed by the search.
    quint32 findName(const QString& name) override
    {
        return IOServiceGetMatchingService(kIOMainPortDefault,
                                           IOServiceNameMatching(name.toUtf8().constData()));
    }

    quint32 findClass(const QString& className) override
    {
        return IOServiceGetMatchingService(kIOMainPortDefault,
                                           IOServiceMatching(className.toUtf8().constData()));
    }

    QVariant property(quint32 entry, const QString& key) override
    {
        const CfOwned<CFTypeRef> value(
            IORegistryEntryCreateCFProperty(entry, cfFromText(key).get(), kCFAllocatorDefault, 0));
        return valueFromCf(value.get());
    }

    QVariantMap properties(quint32 entry) override
    {
        CFMutableDictionaryRef values = nullptr; // stays so after a failure
        IORegistryEntryCreateCFProperties(entry, &values, kCFAllocatorDefault, 0);
        return mapFromCf(CfOwned<CFTypeRef>(values).get());
    }

    IOStatus release(quint32 entry) override { return IOObjectRelease(entry); }
};

} // namespace

std::unique_ptr<RegistryCalls> systemRegistry()
{
    return std::make_unique<SystemRegistry>();
}

} // namespace quindle
