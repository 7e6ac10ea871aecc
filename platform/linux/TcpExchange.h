#pragma once

#include <chrono>
#include <functional>

#include <QByteArray>
#include <QString>

namespace quindle {

using Deadline = std::chrono::steady_clock::time_point;

/// Sends `request` to `port` of `host`, and hands what has come so far to `received` each time there is more,
/// with true when the other side has ended. Returns when `received` wants no more (false), the other side has
/// ended, at any failure, and at the deadline. Waits without dispatching any event.
void exchangeOverTcp(const QString& host, int port, const QByteArray& request, Deadline deadline,
                     const std::function<bool(const QByteArray& bytes, bool isAtEnd)>& received);

} // namespace quindle
