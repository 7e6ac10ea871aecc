#pragma once

namespace quindle {

class UserDefaults;

/// Whether capacities are shown in Wh, where that is known, and not in mAh. `own` is the helper's own
/// database.
bool showsWattHours(const UserDefaults& own);

void toggleWattHours(UserDefaults& own);

} // namespace quindle
