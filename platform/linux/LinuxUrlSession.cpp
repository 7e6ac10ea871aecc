#include "platform/linux/LinuxUrlSession.h"

#include "platform/linux/HttpContents.h"

namespace quindle {

// No service is posted to yet.
void LinuxUrlSession::post(const QString& /*url*/, const QByteArray& /*body*/,
                           std::function<void(int status, const QByteArray& body)> /*answered*/)
{
}

std::optional<QByteArray> LinuxUrlSession::contents(const QString& url)
{
    return httpContents(url);
}

} // namespace quindle
