#pragma once

namespace quindle {

class UrlSession;

/// The module's only entry point, the function of that name. The caller owns the result, which is null for a
/// program of another version, which runs on when the bundle is replaced: shared types may be laid out
/// differently.
using MakeUrlSession = UrlSession* (*)(const char* programVersion);

inline constexpr const char* makeUrlSessionName = "quindleMakeUrlSession";

} // namespace quindle
