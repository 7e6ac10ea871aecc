#pragma once

#include <QString>

namespace quindle {

class Bundle;

/// The host of the statistics service that the daily upload goes to; empty where none is configured, and
/// nothing can be sent.
QString statisticsHost(const Bundle& bundle);

} // namespace quindle
