#pragma once

#include <optional>

#include <QByteArray>
#include <QList>

#include "platform/posix/FileDescriptor.h"

namespace quindle {

/// Starts a program (an absolute path and arguments, in bytes) in a session of its own; it is not a child of
/// this process, which need not wait for it. False when it cannot be run.
bool startDetached(const QList<QByteArray>& command);

/// The same for a program that gets one open file of this process, under the number that it has here. A
/// handle of the process that runs it (a pidfd), which is not open where the kernel gives none; nothing when
/// it cannot be run.
std::optional<FileDescriptor> startDetachedWith(const FileDescriptor& inherited,
                                                const QList<QByteArray>& command);

/// The same for a program that gets the file as its standard input.
std::optional<FileDescriptor> startDetachedReading(const FileDescriptor& input,
                                                   const QList<QByteArray>& command);

} // namespace quindle
