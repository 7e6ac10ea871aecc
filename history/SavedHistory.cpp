#include "history/SavedHistory.h"

#include <cerrno>

#include <QLoggingCategory>

#include "common/FileContents.h"
#include "plist/KeyedArchive.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(historyLog, "quindle.history")

QVariantList nothing(const QString& path, const QString& reason)
{
    qCWarning(historyLog).noquote() << path + QStringLiteral(": the saved history is not used: ") + reason;
    return {};
}

} // namespace

QString savedHistoryFile(const QString& applicationSupportDirectory)
{
    return applicationSupportDirectory + QStringLiteral("/QuindleData.qndarchive");
}

QVariantList savedRecords(const QString& path)
{
    constexpr qint64 largestFile =
        qint64{1024} * 1024 * 1024; // bytes; a century of records takes a fifth of it
    const FileContents file = fileContents(path, largestFile);
    // Most computers have no main application, and so no history: that is no fault.
    if (file.error == ENOENT || file.error == ENOTDIR)
        return {};
    if (file.error != 0)
        return nothing(path, QStringLiteral("it ") + readingFault(file.error));
    const ArchivedRecords archived = recordsFromKeyedArchive(file.bytes);
    return archived.fault.isEmpty() ? archived.records : nothing(path, archived.fault);
}

} // namespace quindle
