#include "application/pages/SavedSamples.h"

#include "records/SampleStore.h"

namespace quindle {

SavedSamples::SavedSamples(const QString& path, QObject* parent)
    : QObject(parent)
    , m_path(path)
{
}

void SavedSamples::read(qint64 from, qint64 to)
{
    struct Result
    {
        std::vector<Sample> samples;
        StoreOutcome outcome;
    };
    const int asked = ++m_asked;
    if (m_path.isEmpty())
        return;
    const auto work = [path = m_path, from, to] {
        Result result;
        result.samples = SampleStore(path).samplesBetween(from, to, &result.outcome);
        return result;
    };
    m_work.run(work, [this, asked](const Result& result) {
        if (!result.outcome.isGood())
            Q_EMIT told(result.outcome.fault);
        if (asked == m_asked)
            Q_EMIT found(result.samples);
    });
}

void SavedSamples::removeAll()
{
    if (m_path.isEmpty())
        return;
    m_work.run([path = m_path] { return SampleStore(path).removeAll(); },
               [this](const StoreOutcome& outcome) {
                   if (!outcome.isGood())
                       Q_EMIT told(outcome.fault);
               });
}

} // namespace quindle

#include "moc_SavedSamples.cpp"
