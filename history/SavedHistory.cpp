#include "history/SavedHistory.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

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
    const QFileInfo info(path);
    if (!info.exists())
        return {};
    QFile file(path);
    // Anything but a plain file could keep the reader waiting for ever.
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return nothing(path, QStringLiteral("it cannot be read"));
    if (file.size() > largestFile)
        return nothing(path, QStringLiteral("it is too large"));
    const ArchivedRecords archived = recordsFromKeyedArchive(file.read(largestFile));
    return archived.fault.isEmpty() ? archived.records : nothing(path, archived.fault);
}

} // namespace quindle
