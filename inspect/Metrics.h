#pragma once

#include <QByteArray>

namespace quindle {

class QDMac;

/// The computer's battery for programs that watch many computers, in the text format that OpenMetrics and
/// Prometheus share: base units, no timestamp, no locale, no serial number, `# EOF` at the end. What is not
/// known has no line; without a battery there is nothing but the end.
QByteArray metricsText(const QDMac& mac);

} // namespace quindle
