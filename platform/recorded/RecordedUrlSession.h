#pragma once

#include <utility>
#include <vector>

#include "platform/UrlSession.h"

namespace quindle {

class RecordedComputer;

/// The network of a recorded computer: the product-information service answers the codes that the machine
/// file knows (`?cc=CODE`), nothing else answers, and posts are kept.
class RecordedUrlSession : public UrlSession
{
public:
    explicit RecordedUrlSession(const RecordedComputer& computer)
        : m_computer(computer)
    {
    }

    void post(const QString& url, const QByteArray& body,
              std::function<void(int status, const QByteArray& body)> answered) override;
    std::optional<QByteArray> contents(const QString& url) override;

    /// Address and body of every post, in order.
    const std::vector<std::pair<QString, QByteArray>>& posts() const { return m_posts; }

private:
    const RecordedComputer& m_computer;
    std::vector<std::pair<QString, QByteArray>> m_posts;
};

} // namespace quindle
