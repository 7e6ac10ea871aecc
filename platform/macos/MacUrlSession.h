#pragma once

#include "platform/UrlSession.h"
#include "platform/macos/SystemCalls.h"

namespace quindle {

class MacUrlSession : public UrlSession
{
public:
    explicit MacUrlSession(HttpCalls& calls);

    void post(const QString& url, const QByteArray& body,
              std::function<void(int status, const QByteArray& body)> answered) override;
    std::optional<QByteArray> contents(const QString& url) override;

private:
    HttpCalls& m_calls;
    std::shared_ptr<void> m_alive; ///< answers after its end are ignored
};

} // namespace quindle
