#pragma once

#include <functional>

#include <QByteArray>
#include <QString>

namespace quindle {

/// What the network module does for the program; see UrlSession::post.
class Poster
{
public:
    virtual ~Poster() = default;

    virtual void post(const QString& url, const QByteArray& body,
                      std::function<void(int status, const QByteArray& body)> answered) = 0;
};

} // namespace quindle
