#pragma once

#include <QString>

namespace quindle {

class QDBattery;
class QDMac;

/// The demonstration computer's model identifier.
QString demoModel();

/// Gives a computer's model and its battery the values of the demonstration computer.
void setDemoValues(QDMac& mac);
void setDemoValues(QDBattery& battery);

} // namespace quindle
