#pragma once

#include <functional>

#include <QString>

namespace quindle {

/// Takes a command's messages, a line each, for standard error.
using CommandReport = std::function<void(const QString& line)>;

/// The exit code, as sysexits.h has them, of a file that could not be written for that reason (errno's
/// value).
int exitCodeOfWriting(int error);

} // namespace quindle
