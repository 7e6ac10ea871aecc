#pragma once

#include <memory>

#include "platform/UrlSession.h"

namespace quindle {

class Bundle;

/// The file of the network module in the program's bundle.
QString networkModule(const Bundle& programBundle);

/// Exchanges over the network. The network libraries are loaded with the first one; an address without a host
/// is none.
class LinuxUrlSession : public UrlSession
{
public:
    /// `modulePath`: the module that does the work. When it cannot be loaded nothing is sent.
    explicit LinuxUrlSession(QString modulePath);
    ~LinuxUrlSession() override;

    void post(const QString& url, const QByteArray& body,
              std::function<void(int status, const QByteArray& body)> answered) override;
    std::optional<QByteArray> contents(const QString& url) override;

private:
    UrlSession* sessionFor(const QString& url);
    void load();

    QString m_modulePath;
    bool m_loaded = false;
    std::unique_ptr<UrlSession> m_session;
};

} // namespace quindle
