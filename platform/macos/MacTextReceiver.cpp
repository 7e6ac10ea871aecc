#include "platform/macos/MacTextReceiver.h"

#include <csignal>
#include <utility>

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryFile>

namespace quindle {

MacTextReceiver::MacTextReceiver(QString program, QStringList arguments)
    : m_program(std::move(program))
    , m_arguments(std::move(arguments))
{
}

bool MacTextReceiver::isInstalled() const
{
    return QFileInfo(m_program).isExecutable();
}

bool MacTextReceiver::isRunning()
{
    return m_last > 0 && ::kill(static_cast<pid_t>(m_last), 0) == 0;
}

bool MacTextReceiver::handOver(const QByteArray& text)
{
    QTemporaryFile file;
    if (!file.open() || file.write(text) != text.size() || !file.flush())
        return false;
    QProcess process;
    process.setProgram(m_program);
    process.setArguments(m_arguments);
    // Opened before this returns; the name goes with `file`.
    process.setStandardInputFile(file.fileName());
    return process.startDetached(&m_last);
}

} // namespace quindle
