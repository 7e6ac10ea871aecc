#pragma once

namespace quindle {

class QDMac;
class UserDefaults;

/// Brings temperature and ages to the units that another process has stored, as after a click there. A stored
/// number that is no mode changes nothing.
void followStoredModes(QDMac& mac, const UserDefaults& own);

} // namespace quindle
