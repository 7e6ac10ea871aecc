#include "platform/recorded/RecordedBundle.h"

#include "platform/recorded/RecordedComputer.h"

namespace quindle {

RecordedBundle::RecordedBundle(const RecordedComputer& computer, const Bundle& programBundle)
    : m_computer(computer)
    , m_programBundle(programBundle)
{
}

QString RecordedBundle::path() const
{
    const std::optional<QVariantMap> bundle = m_computer.bundle();
    // Replaced as a whole: the program's path with another bundle's information would be neither.
    return bundle ? bundle->value(QStringLiteral("Path")).toString() : m_programBundle.path();
}

std::optional<QVariantMap> RecordedBundle::infoDictionary() const
{
    const std::optional<QVariantMap> bundle = m_computer.bundle();
    if (!bundle)
        return m_programBundle.infoDictionary();
    const auto info = bundle->constFind(QStringLiteral("Info"));
    if (info == bundle->cend())
        return std::nullopt;
    return info->toMap();
}

} // namespace quindle
