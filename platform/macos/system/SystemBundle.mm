#include "platform/macos/MacCalls.h"
#include "platform/macos/system/CocoaText.h"

namespace quindle {

namespace {

class SystemBundle : public Bundle
{
public:
    explicit SystemBundle(NSBundle* bundle)
        : m_bundle(bundle)
    {
    }

    QString path() const override { return plainText(m_bundle.bundlePath); }

    std::optional<QVariantMap> infoDictionary() const override
    {
        NSDictionary* const info = m_bundle.infoDictionary;
        return info ? std::optional(mapFromCf((__bridge CFTypeRef)info)) : std::nullopt;
    }

private:
    NSBundle* m_bundle;
};

class SystemHost : public Host
{
public:
    QString localizedName() const override { return plainText([NSHost currentHost].localizedName); }
};

class SystemUserDirectories : public UserDirectories
{
public:
    QStringList applicationSupportDirectories() const override
    {
        NSArray* const folders =
            NSSearchPathForDirectoriesInDomains(NSApplicationSupportDirectory, NSUserDomainMask, YES);
        return valueFromCf((__bridge CFTypeRef)folders).toStringList();
    }
};

} // namespace

std::unique_ptr<Bundle> runningBundle()
{
    return std::make_unique<SystemBundle>([NSBundle mainBundle]);
}

std::unique_ptr<Bundle> bundleAt(const QString& path)
{
    return std::make_unique<SystemBundle>([NSBundle bundleWithPath:cocoaText(path)]);
}

std::unique_ptr<Host> systemHost()
{
    return std::make_unique<SystemHost>();
}

std::unique_ptr<UserDirectories> systemUserDirectories()
{
    return std::make_unique<SystemUserDirectories>();
}

QString homeFolderOfSystem()
{
    return plainText(NSHomeDirectory());
}

} // namespace quindle
