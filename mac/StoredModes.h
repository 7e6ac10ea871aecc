#pragma once

namespace quindle {

class QDMac;
class UserDefaults;

/// Brings temperature and ages to the units that another process has stored, as after a click there; whether
/// any has changed. A stored number that is no mode changes nothing.
bool followStoredModes(QDMac& mac, const UserDefaults& own);

} // namespace quindle
