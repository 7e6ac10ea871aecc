#pragma once

#include <functional>

#include <QString>

namespace quindle {

/// Takes what a command has to say, a line each, for standard error.
using CommandReport = std::function<void(const QString& line)>;

/// The exit code, as sysexits.h has them, of a file that could not be written for that reason (errno's
/// value).
int exitCodeOfWriting(int error);

} // namespace quindle
