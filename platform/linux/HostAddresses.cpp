#include "platform/linux/HostAddresses.h"

#include <thread>
#include <utility>

namespace quindle {

namespace {

HostAddresses resolve(const QByteArray& host, const QByteArray& port)
{
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_ADDRCONFIG;
    addrinfo* found = nullptr;
    return HostAddresses(getaddrinfo(host.constData(), port.constData(), &hints, &found) == 0 ? found
                                                                                              : nullptr);
}

} // namespace

void lookUpHost(const QByteArray& host, int port, std::function<void(HostAddresses)> found)
{
    std::thread([host, service = QByteArray::number(port), found = std::move(found)] {
        found(resolve(host, service));
    }).detach();
}

} // namespace quindle
