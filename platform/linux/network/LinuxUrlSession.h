#pragma once

#include <memory>

#include "platform/UrlSession.h"

namespace quindle {

class Bundle;

/// The file of the network module in the program's bundle.
QString networkModule(const Bundle& programBundle);

/// Exchanges over the network, made by a module that is loaded for the first one to a host.
class LinuxUrlSession : public UrlSession
{
public:
    /// `modulePath`: when it cannot be loaded, one line is logged, nothing is sent and nothing is found.
    explicit LinuxUrlSession(QString modulePath);

    void post(const QString& url, const QByteArray& body,
              std::function<void(int status, const QByteArray& body)> answered) override;
    std::optional<QByteArray> contents(const QString& url) override;

private:
    UrlSession* sessionFor(const QString& url);

    QString m_modulePath;
    bool m_loaded = false;
    std::unique_ptr<UrlSession> m_session;
};

} // namespace quindle
