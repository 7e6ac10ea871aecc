#pragma once

#include <cstddef>

#include <QByteArray>

namespace quindle {

/// Writes to standard error as far as that goes without waiting: what a full pipe or a stopped terminal does
/// not accept is lost, and so is what nobody reads any more. Safe in a signal handler.
void writeToStandardError(const char* text, std::size_t size);

/// The same for one line, to which the line's end is added.
void printToStandardError(const QByteArray& line);

/// Writes log messages that way for the rest of the process, and lets a reader that has gone end nothing.
/// Programs that are started from here meet SIGPIPE as usual.
void neverWaitForStandardError();

} // namespace quindle
