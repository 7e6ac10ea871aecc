#pragma once

#include <memory>

#include "platform/UrlSession.h"

namespace quindle {

class Bundle;
class Poster;

/// The file of the network module in the program's bundle.
QString networkModule(const Bundle& programBundle);

/// Exchanges over the network. The network libraries are loaded with the first post; fetching needs none.
class LinuxUrlSession : public UrlSession
{
public:
    /// `modulePath`: the module that posts. When it cannot be loaded nothing is sent.
    explicit LinuxUrlSession(QString modulePath);
    ~LinuxUrlSession() override;

    void post(const QString& url, const QByteArray& body,
              std::function<void(int status, const QByteArray& body)> answered) override;
    std::optional<QByteArray> contents(const QString& url) override;

private:
    void load();

    QString m_modulePath;
    bool m_loaded = false;
    std::unique_ptr<Poster> m_poster;
};

} // namespace quindle
