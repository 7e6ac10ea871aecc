#include <ServiceManagement/ServiceManagement.h>

#include "platform/macos/MacCalls.h"
#include "platform/macos/system/CocoaText.h"

namespace quindle {

namespace {

class SystemLoginItem : public LoginCalls
{
public:
    explicit SystemLoginItem(SMAppService* service)
        : m_service(service)
    {
    }

    bool isOn() override { return m_service.status == SMAppServiceStatusEnabled; }

    QString setOn(bool isOn) override
    {
        NSError* error = nil;
        const BOOL done =
            isOn ? [m_service registerAndReturnError:&error] : [m_service unregisterAndReturnError:&error];
        return done ? QString() : plainText(error.localizedDescription);
    }

private:
    SMAppService* m_service;
};

} // namespace

std::unique_ptr<LoginCalls> ownLoginItem()
{
    return std::make_unique<SystemLoginItem>([SMAppService mainAppService]);
}

std::unique_ptr<LoginCalls> loginItemNamed(const QString& identifier)
{
    return std::make_unique<SystemLoginItem>(
        [SMAppService loginItemServiceWithIdentifier:cocoaText(identifier)]);
}

} // namespace quindle
