#pragma once

namespace quindle {

/// Where the item and its menu are on a connection.
inline constexpr auto itemObjectPath = "/StatusNotifierItem";
inline constexpr auto menuObjectPath = "/MenuBar";

} // namespace quindle
