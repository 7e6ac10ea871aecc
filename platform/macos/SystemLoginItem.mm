#include <ServiceManagement/ServiceManagement.h>

#include "platform/macos/CocoaText.h"
#include "platform/macos/MacCalls.h"

namespace quindle {

namespace {

class SystemLoginItem : public LoginCalls
{
public:
    bool isOn() override { return [SMAppService mainAppService].status == SMAppServiceStatusEnabled; }

    QString setOn(bool isOn) override
    {
        NSError* error = nil;
        SMAppService* const service = [SMAppService mainAppService];
        const BOOL done =
            isOn ? [service registerAndReturnError:&error] : [service unregisterAndReturnError:&error];
        return done ? QString() : plainText(error.localizedDescription);
    }
};

} // namespace

std::unique_ptr<LoginCalls> systemLoginItem()
{
    return std::make_unique<SystemLoginItem>();
}

} // namespace quindle
