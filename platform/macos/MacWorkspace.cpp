#include "platform/macos/MacWorkspace.h"

#include <QLoggingCategory>

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(macWorkspaceLog, "quindle.workspace")

} // namespace

/// The application in a folder; any other path itself.
QString MacWorkspace::target(const QString& path)
{
    const QString application = path + QStringLiteral("/Quindle.app");
    return m_calls.exists(application) ? application : path;
}

void MacWorkspace::launchApplication(const QString& path)
{
    if (!path.isEmpty() && m_calls.exists(path) && m_calls.open(target(path))) {
        // A path that worked may fail again, which is news.
        m_failed.remove(path);
        return;
    }
    if (m_failed.contains(path))
        return;
    m_failed.insert(path);
    qCWarning(macWorkspaceLog, "cannot launch %ls", qUtf16Printable(path));
}

} // namespace quindle
