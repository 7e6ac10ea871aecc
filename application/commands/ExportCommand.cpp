#include "application/commands/ExportCommand.h"

#include <limits>

#include <sysexits.h>
#include <unistd.h>

#include "common/Paths.h"
#include "history/SavedHistory.h"
#include "platform/Host.h"
#include "records/SampleExport.h"
#include "records/SampleStore.h"
#include "records/SnapshotArchive.h"

namespace quindle {

namespace {

/// Collects what it is given into larger parts.
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
        // A system call for each record would take longer than making it.
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

/// The file of the history, where there is one; else it is reported why not, and empty.
QString existingPath(const Platform& platform, QString (*file)(const QString& folder), const char* missing,
                     const CommandReport& report)
{
    const QStringList folders = platform.userDirectories.applicationSupportDirectories();
    QString path = folders.isEmpty() ? QString() : file(folders.constFirst());
    if (!path.isEmpty() && ::access(pathBytes(path).constData(), F_OK) == 0)
        return path;
    report(path.isEmpty() ? QStringLiteral("there is no folder for the history")
                          : path + QStringLiteral(": ") + QString::fromLatin1(missing));
    return {};
}

int endOf(bool isWritten, const QIODevice& output, const CommandReport& report)
{
    if (isWritten)
        return EX_OK;
    report(QStringLiteral("cannot write to standard output: ") + output.errorString());
    return EX_IOERR;
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
    const QString path = existingPath(platform, &savedHistoryFile, "no snapshot has been saved yet", report);
    if (path.isEmpty())
        return EX_NOINPUT;
    const ArchivedRecords archived = SnapshotArchive(path).read();
    // Half an archive would look like a whole one.
    if (!archived.fault.isEmpty()) {
        report(archived.fault);
        return EX_DATAERR;
    }
    return endOf(write(archived.records, options, output), output, report);
}

int exportSamples(const Platform& platform, const ExportOptions& options, QIODevice& output,
                  const CommandReport& report)
{
    const QString path = existingPath(platform, &historyFile, "nothing has been recorded yet", report);
    if (path.isEmpty())
        return EX_NOINPUT;
    const qint64 from = options.since ? options.since->toSecsSinceEpoch() : 0;
    StoreOutcome outcome;
    const auto samples = SampleStore(path).samplesBetween(from, std::numeric_limits<qint64>::max(), &outcome);
    for (const QString& line : {outcome.notice, outcome.fault})
        if (!line.isEmpty())
            report(line);
    // A notice says that the file was damaged, so nothing of it is left to export.
    if (!outcome.isGood() || !outcome.notice.isEmpty())
        return EX_DATAERR;
    const QByteArray text = samplesText(samples, options.format);
    return endOf(output.write(text) == text.size(), output, report);
}

} // namespace quindle
