#pragma once

#include <functional>
#include <optional>

#include <QByteArray>
#include <QString>

namespace quindle {

/// Exchanges with the product's services. Started on the main thread; nothing here blocks longer than stated.
class UrlSession
{
public:
    virtual ~UrlSession() = default;

    /// Posts `body` to `url` beside the main loop, without a content type. `answered` is called on the main
    /// thread with the status and body of a complete answer, and not at all when there is none.
    virtual void post(const QString& url, const QByteArray& body,
                      std::function<void(int status, const QByteArray& body)> answered) = 0;

    /// The contents of `url`, fetched at once; nothing after any failure, and for an address without a host.
    /// Blocks for a few seconds at most.
    virtual std::optional<QByteArray> contents(const QString& url) = 0;
};

} // namespace quindle
