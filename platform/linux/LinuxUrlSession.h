#pragma once

#include "platform/UrlSession.h"

namespace quindle {

/// Exchanges over the network.
class LinuxUrlSession : public UrlSession
{
public:
    void post(const QString& url, const QByteArray& body,
              std::function<void(int status, const QByteArray& body)> answered) override;
    std::optional<QByteArray> contents(const QString& url) override;
};

} // namespace quindle
