#pragma once

namespace quindle {

class HelperAppDelegate;
struct Platform;

/// Shows temperature and ages in the units that another process has stored, whenever one says that settings
/// have changed. Not the delegate's own part: what is defined of it is the title, and quindle-inspect shows
/// no more. Both must outlive the notifications of `platform`.
void followStoredUnits(const Platform& platform, HelperAppDelegate& delegate);

} // namespace quindle
