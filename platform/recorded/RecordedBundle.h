#pragma once

#include "platform/Bundle.h"

namespace quindle {

class RecordedComputer;

/// The recorded bundle as a whole: what it does not record is missing. Without one, the running program's
/// own.
class RecordedBundle : public Bundle
{
public:
    RecordedBundle(const RecordedComputer& computer, const Bundle& programBundle);

    QString path() const override;
    std::optional<QVariantMap> infoDictionary() const override;

    /// The program's own: nothing is opened at a place that a machine file names.
    QString resourcesPath() const override { return m_programBundle.resourcesPath(); }

private:
    const RecordedComputer& m_computer;
    const Bundle& m_programBundle;
};

} // namespace quindle
