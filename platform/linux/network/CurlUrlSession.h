#pragma once

#include <list>
#include <thread>

#include <QByteArray>
#include <QObject>

#include "platform/UrlSession.h"
#include "platform/linux/network/HttpExchange.h"

namespace quindle {

struct CurlSettings
{
    HttpLimits post{.time = std::chrono::seconds(30), .size = qsizetype{64} * 1024};
    HttpLimits contents{.time = std::chrono::seconds(3),
                        .size = qsizetype{64} * 1024}; ///< redirections included
    QByteArray authorities{}; ///< a file of certificate authorities to trust; the system's when empty
};

/// The exchanges themselves. Each request is sent once, over a connection of its own, and carries nothing
/// about the user. Destroying it ends the posts that are still under way.
class CurlUrlSession : public UrlSession
{
public:
    explicit CurlUrlSession(CurlSettings settings = {});

    /// Only over https, in a thread of its own.
    void post(const QString& url, const QByteArray& body,
              std::function<void(int status, const QByteArray& body)> answered) override;

    /// Only over http. Nothing for an answer other than a success; redirections are followed to the same host
    /// and port only.
    std::optional<QByteArray> contents(const QString& url) override;

private:
    struct Post
    {
        std::function<void(int status, const QByteArray& body)> answered;
        std::jthread thread;
    };

    void finish(std::list<Post>::iterator post, const std::optional<HttpAnswer>& answer);

    const CurlSettings m_settings;
    QObject m_mainThread;    ///< what is queued for it happens there
    std::list<Post> m_posts; ///< under way
};

} // namespace quindle
