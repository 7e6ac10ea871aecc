#pragma once

#include <functional>
#include <optional>

#include <QByteArray>
#include <QString>

namespace quindle {

/// Exchanges with the product's services. Each request is sent once and never repeated; no host is
/// configured in the program as built, so nothing leaves it then. Called on the main thread; nothing here
/// blocks it longer than stated.
class UrlSession
{
public:
    virtual ~UrlSession() = default;

    /// Posts `body` to `url` (https) without waiting and without a content type.
    /// `answered` is called on the main thread with the HTTP status, whatever it is, and the body of a
    /// complete answer; not at all when there is none, when the address cannot be used, or when this object
    /// is destroyed first.
    virtual void post(const QString& url, const QByteArray& body,
                      std::function<void(int status, const QByteArray& body)> answered) = 0;

    /// The body that `url` (http) answers with, fetched at once; it may be empty.
    /// Nothing after any failure, any status but success, and for an address without a host.
    /// Blocks for a few seconds at most.
    virtual std::optional<QByteArray> contents(const QString& url) = 0;
};

} // namespace quindle
