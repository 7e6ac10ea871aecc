#pragma once

namespace quindle {

class UserDefaultsDatabases;

/// Copies the menu bar text that an older helper parked in a key of the main application's,
/// "statusBarString", to where it is looked for now. Removes nothing, and copies only what such a helper must
/// have left behind: the standard title is chosen and written down, and nothing is parked in the right place
/// yet.
void copyTextParkedByOlderHelper(UserDefaultsDatabases& databases);

} // namespace quindle
