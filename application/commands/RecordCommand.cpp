#include "application/commands/RecordCommand.h"

#include <optional>
#include <sysexits.h>

#include "application/commands/SampleInput.h"
#include "common/DateFromText.h"
#include "common/Digests.h"
#include "history/SavedHistory.h"
#include "mac/QDMac.h"
#include "platform/Host.h"
#include "platform/UserDefaults.h"
#include "records/FirstWeek.h"
#include "records/SampleStore.h"
#include "records/SnapshotArchive.h"
#include "records/SnapshotIdentity.h"
#include "records/Thinning.h"
#include "settings/HistorySettings.h"

namespace quindle {

namespace {

const char* const dailyNote = "daily";
const char* const snapshotNote = "snapshot";

/// Stands for battery and day of a snapshot, in local time. Says neither: notes stay when the user deletes
/// all that was recorded.
QByteArray snapshotMark(const QVariantMap& snapshot, const QDateTime& date)
{
    return sha1Hex(dayText(date) + u' ' + snapshotBattery(snapshot)).toLatin1();
}

/// One call of the command.
class Recorder
{
public:
    Recorder(const Platform& platform, const QString& folder, const CommandReport& report)
        : m_platform(platform)
        , m_store(historyFile(folder))
        , m_archive(savedHistoryFile(folder))
        , m_report(report)
        , m_now(platform.clock.now().toSecsSinceEpoch())
    {
    }

    void storeSamples(QIODevice& input)
    {
        SampleInput samples(input);
        // In parts, so that an endless input does not take endless memory.
        while (samples.readSome())
            take(m_store.append(samples.samples()));
        if (samples.damagedLines() == 0)
            return;
        m_report(
            QStringLiteral("standard input: lines that are not samples: %1").arg(samples.damagedLines()));
        fail(EX_DATAERR);
    }

    void takeOver(PowerHistory& history) { take(takeOverFirstWeek(m_store, history, m_now)); }

    void saveSnapshot()
    {
        const auto mac = QDMac::init(m_platform);
        const auto snapshot = mac->getDataForSaving(false);
        if (!snapshot || !isSnapshotDue({}, *snapshot))
            return;
        // The archive is read as a whole, so a note saves the work for the rest of the day. It also means
        // that a snapshot which the user has deleted today does not come back.
        const QByteArray mark = snapshotMark(*snapshot, *snapshotDate(*snapshot));
        if (m_store.note(snapshotNote) != mark && take(m_archive.appendIfDue(*snapshot)))
            take(m_store.setNote(snapshotNote, mark));
    }

    void doDailyWork()
    {
        const auto note = m_store.note(dailyNote);
        const DailyTurn turn = dailyTurn(note ? std::optional(note->toLongLong()) : std::nullopt, m_now);
        if (turn == DailyTurn::Wait || !take(m_store.setNote(dailyNote, QByteArray::number(m_now))))
            return;
        if (turn == DailyTurn::Go && take(m_store.thin(m_now)))
            removeUnwanted();
    }

    int exitCode() const { return m_exitCode; }

private:
    void removeUnwanted()
    {
        // Of samples only: a snapshot is one line a day, and only years of them say how a battery wears.
        const qint64 days = historyDays(m_platform.userDefaults.standard());
        if (days > 0)
            take(m_store.removeBefore(m_now - days * secondsOfDay));
    }

    /// Reports fault and notice. False after a failure.
    bool take(const StoreOutcome& outcome)
    {
        if (!outcome.notice.isEmpty())
            m_report(outcome.notice);
        if (outcome.isGood())
            return true;
        // A full disk is reported in one line, however much could not be written.
        if (!m_reported.contains(outcome.fault))
            m_report(outcome.fault);
        m_reported.append(outcome.fault);
        fail(exitCodeOfWriting(outcome.error));
        return false;
    }

    void fail(int exitCode)
    {
        if (m_exitCode == EX_OK)
            m_exitCode = exitCode;
    }

    const Platform& m_platform;
    SampleStore m_store;
    SnapshotArchive m_archive;
    const CommandReport& m_report;
    qint64 m_now;           ///< seconds since 1970
    QStringList m_reported; ///< faults
    int m_exitCode = EX_OK;
};

} // namespace

int recordHistory(const Platform& platform, PowerHistory& powerHistory, QIODevice& input,
                  const CommandReport& report)
{
    if (!recordsHistory(platform.userDefaults.standard()))
        return EX_OK;
    const QStringList folders = platform.userDirectories.applicationSupportDirectories();
    if (folders.isEmpty()) {
        report(QStringLiteral("there is no folder for the history: the user has no home folder, "
                              "or the computer is a recorded one"));
        return EX_CANTCREAT;
    }
    Recorder recorder(platform, folders.constFirst(), report);
    recorder.storeSamples(input);
    recorder.takeOver(powerHistory);
    recorder.saveSnapshot();
    recorder.doDailyWork();
    return recorder.exitCode();
}

} // namespace quindle
