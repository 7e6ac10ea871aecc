#pragma once

#include <cstddef>

#include <QByteArray>

namespace quindle {

/// Writes to standard error as far as possible without waiting: what a full pipe or a stopped terminal does
/// not accept is lost, as is what has no reader any more. Safe in a signal handler.
void writeToStandardError(const char* text, std::size_t size);

/// The same for one line, to which the line's end is added.
void printToStandardError(const QByteArray& line);

/// Writes log messages this way for the rest of the process, and keeps SIGPIPE from ending it. Programs that
/// it starts get SIGPIPE as usual.
void neverWaitForStandardError();

} // namespace quindle
