#pragma once

#include <functional>
#include <memory>

#include <QByteArray>
#include <netdb.h>

namespace quindle {

struct HostAddressesFree
{
    void operator()(addrinfo* addresses) const { freeaddrinfo(addresses); }
};

/// The addresses of a host for connections over TCP, the best one first; none when there is no such host.
using HostAddresses = std::unique_ptr<addrinfo, HostAddressesFree>;

/// Looks a host up and calls `found` in another thread. The resolver knows no deadline and cannot be stopped:
/// the thread is left to itself, and the end of the process does not wait for it. `found` may therefore
/// touch only what it keeps alive itself.
void lookUpHost(const QByteArray& host, int port, std::function<void(HostAddresses)> found);

} // namespace quindle
