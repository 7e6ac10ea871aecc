#pragma once

#include <QList>

#include "platform/DetachedPrograms.h"
#include "platform/posix/FileDescriptor.h"

namespace quindle {

/// Starts a program that finds the text in a file in memory: unlike a pipe, that takes texts of any length at
/// once, and nobody has to wait for a program that ends without reading it.
class LinuxTextReceiver final : public TextReceiver
{
public:
    /// `command` is an absolute path, empty for no program, and arguments.
    explicit LinuxTextReceiver(QList<QByteArray> command);

    bool isInstalled() const override;
    bool isRunning() override;
    bool handOver(const QByteArray& text) override;

private:
    QList<QByteArray> m_command;
    FileDescriptor m_process; ///< a handle of the one that was started last, until it has ended
};

} // namespace quindle
