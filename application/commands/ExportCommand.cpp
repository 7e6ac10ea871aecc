#include "application/commands/ExportCommand.h"

#include <QFileInfo>
#include <sysexits.h>

#include "history/SavedHistory.h"
#include "platform/Host.h"
#include "records/SnapshotArchive.h"

namespace quindle {

namespace {

/// Writes in larger parts than it is given.
class PartWriter
{
public:
    explicit PartWriter(QIODevice& output)
        : m_output(output)
    {
    }

    bool add(const QByteArray& bytes)
    {
        constexpr qsizetype enough = qsizetype{64} * 1024;
        m_bytes += bytes;
        return m_bytes.size() < enough || flush();
    }

    bool flush()
    {
        const bool isTaken = m_output.write(m_bytes) == m_bytes.size();
        m_bytes.clear();
        return isTaken;
    }

private:
    QIODevice& m_output;
    QByteArray m_bytes;
};

bool write(const QVariantList& records, const ExportOptions& options, QIODevice& output)
{
    PartWriter writer(output);
    return exportSnapshots(records, options, [&](const QByteArray& bytes) { return writer.add(bytes); }) &&
           writer.flush();
}

} // namespace

std::optional<ExportFormat> exportFormatNamed(const QString& name)
{
    if (name == u"csv")
        return ExportFormat::Csv;
    if (name == u"json")
        return ExportFormat::Json;
    return std::nullopt;
}

int exportHistory(const Platform& platform, const ExportOptions& options, QIODevice& output,
                  const CommandReport& report)
{
    const QStringList folders = platform.userDirectories.applicationSupportDirectories();
    const QString path = folders.isEmpty() ? QString() : savedHistoryFile(folders.constFirst());
    if (path.isEmpty() || !QFileInfo::exists(path)) {
        report((path.isEmpty() ? QStringLiteral("there is no folder for the history")
                               : path + QStringLiteral(": no snapshot has been saved yet")));
        return EX_NOINPUT;
    }
    const ArchivedRecords archived = SnapshotArchive(path).read();
    if (!archived.fault.isEmpty()) {
        report(archived.fault);
        return EX_DATAERR;
    }
    if (write(archived.records, options, output))
        return EX_OK;
    report(QStringLiteral("cannot write to standard output: ") + output.errorString());
    return EX_IOERR;
}

} // namespace quindle
