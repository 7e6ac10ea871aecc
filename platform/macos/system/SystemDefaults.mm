#include "platform/macos/MacCalls.h"
#include "platform/macos/system/CocoaText.h"

namespace quindle {

namespace {

class SystemDefaults : public DefaultsCalls
{
public:
    SystemDefaults(NSUserDefaults* defaults, NSString* domain)
        : m_defaults(defaults)
        , m_domain(domain)
    {
    }

    QVariant object(const QString& key) const override
    {
        return valueFromCf((__bridge CFTypeRef)[m_defaults objectForKey:cocoaText(key)]);
    }

    void setObject(const QString& key, const QVariant& value) override
    {
        [m_defaults setObject:(__bridge_transfer id)cfFromValue(value).release() forKey:cocoaText(key)];
    }

    QVariantMap domain() const override
    {
        return mapFromCf((__bridge CFTypeRef)[m_defaults persistentDomainForName:m_domain]);
    }

private:
    NSUserDefaults* m_defaults;
    NSString* m_domain;
};

} // namespace

std::unique_ptr<DefaultsCalls> standardDefaults(const QString& domain)
{
    return std::make_unique<SystemDefaults>([NSUserDefaults standardUserDefaults], cocoaText(domain));
}

std::unique_ptr<DefaultsCalls> suiteDefaults(const QString& name)
{
    NSUserDefaults* const suite = [[NSUserDefaults alloc] initWithSuiteName:cocoaText(name)];
    return suite ? std::make_unique<SystemDefaults>(suite, cocoaText(name)) : nullptr;
}

} // namespace quindle
