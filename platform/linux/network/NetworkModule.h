#pragma once

namespace quindle {

class UrlSession;

/// The module's only door: the function of that name. The caller owns what it gets, which is null for a
/// program of another version, as runs on when the bundle is replaced: what both use may be laid out
/// differently.
using MakeUrlSession = UrlSession* (*)(const char* programVersion);

inline constexpr const char* makeUrlSessionName = "quindleMakeUrlSession";

} // namespace quindle
