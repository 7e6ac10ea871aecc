// What the helper needs the network libraries for. They cost every process that loads them more than the rest
// of the program's services together, so this is a module of its own, which only a process that sends
// something loads.

#include <utility>

#include "platform/UrlSession.h"
#include "platform/linux/HttpContents.h"
#include "platform/linux/HttpsPost.h"

namespace quindle {

namespace {

class NetworkUrlSession : public UrlSession
{
public:
    void post(const QString& url, const QByteArray& body,
              std::function<void(int status, const QByteArray& body)> answered) override
    {
        m_post.post(url, body, std::move(answered));
    }

    std::optional<QByteArray> contents(const QString& url) override { return httpContents(url); }

private:
    HttpsPost m_post;
};

} // namespace

} // namespace quindle

/// The module's only door. The caller owns the session.
extern "C" Q_DECL_EXPORT quindle::UrlSession* quindleNetworkSession()
{
    return new quindle::NetworkUrlSession;
}
