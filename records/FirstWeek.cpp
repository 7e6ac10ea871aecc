#include "records/FirstWeek.h"

#include "records/UPowerSamples.h"

namespace quindle {

StoreOutcome takeOverFirstWeek(SampleStore& store, PowerHistory& history, qint64 now)
{
    const QByteArray isTakenOver = QByteArrayLiteral("first week");
    // Once: what was thinned or removed since then must not come back.
    if (store.note(isTakenOver))
        return {};
    const auto recorded = history.lastWeek();
    // The service has not answered; the next call asks again.
    if (!recorded)
        return {};
    // Up to where the own samples begin, which are better.
    const auto samples = samplesFromHistory(*recorded, store.firstMoment().value_or(now));
    const StoreOutcome added = store.append(samples, SampleSource::UPower);
    // Together they are no single step: after a crash between them it is done again, which adds nothing.
    return added.isGood() ? store.setNote(isTakenOver, QByteArray::number(now)) : added;
}

} // namespace quindle
