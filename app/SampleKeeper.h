#pragma once

#include <QDate>
#include <QObject>

#include "samples/SampleBuffer.h"

namespace quindle {

class HelperAppDelegate;
class TextReceiver;
struct Platform;

/// The helper's part in the recorded history. It takes a sample whenever the status item has been refreshed
/// and keeps it in memory; `quindle --record` gets what there is once an hour, before sleep, when the history
/// is looked at (samplesWantedNotification) and at the end, and is started once a day also without a sample,
/// because it saves the day's snapshot. It writes nothing itself and has no timer: the hour is checked when a
/// refresh comes anyway. While recording is switched off, or that program is not installed, it keeps nothing;
/// when the history is deleted (historyDeletedNotification), it forgets what it has. Main thread only.
class SampleKeeper : public QObject
{
public:
    /// All must outlive it; the notifications of `platform` may come until they are gone.
    SampleKeeper(const Platform& platform, HelperAppDelegate& delegate, TextReceiver& recorder);

    /// The process is about to end: hands over what there is.
    void finish();

    const SampleBuffer& samples() const { return m_samples; }

private:
    void takeSample();
    void takeTurn();
    void lookAgain();
    void handOverNow();
    void handOver();
    bool isRecorderFree();
    void report(const char* fault);

    const Platform& m_platform;
    HelperAppDelegate& m_delegate;
    TextReceiver& m_recorder;
    SampleBuffer m_samples;
    bool m_isOn = false;
    qint64 m_lastTurn; ///< seconds since 1970: when the hour was last over
    QDate m_lastDay;   ///< when the recorder was last started
    bool m_hasReported = false;
};

} // namespace quindle
