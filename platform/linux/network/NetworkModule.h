#pragma once

namespace quindle {

class UrlSession;

/// The module's only entry point, the function of that name. The caller owns the result. It is null for a
/// program of another version, as when the bundle is replaced under a running program: shared types may be
/// laid out differently.
using MakeUrlSession = UrlSession* (*)(const char* programVersion);

inline constexpr const char* makeUrlSessionName = "quindleMakeUrlSession";

} // namespace quindle
