#include "platform/macos/MacUserDefaults.h"

#include <utility>

namespace quindle {

namespace {

QString domainFile(const QString& home, const QString& domain)
{
    return home + QStringLiteral("/Library/Preferences/") + domain + QStringLiteral(".plist");
}

} // namespace

MacUserDefaults::MacUserDefaults(std::unique_ptr<DefaultsCalls> calls, QString file)
    : m_calls(std::move(calls))
    , m_file(std::move(file))
{
}

void MacUserDefaults::setObject(const QString& key, const QVariant& value)
{
    // Of variants, 1 and true are equal too.
    const QVariant stored = object(key);
    if (stored.typeId() != value.typeId() || stored != value)
        m_calls->setObject(key, value);
}

MacUserDefaultsDatabases::MacUserDefaultsDatabases(Open open, std::unique_ptr<DefaultsCalls> own,
                                                   QString ownDomain, QString home)
    : m_open(std::move(open))
    , m_home(std::move(home))
    , m_standard(std::move(own), domainFile(m_home, ownDomain))
{
}

UserDefaults* MacUserDefaultsDatabases::suite(const QString& suiteName)
{
    const auto [suite, isNew] = m_suites.try_emplace(suiteName);
    if (isNew)
        if (auto calls = m_open(suiteName))
            suite->second =
                std::make_unique<MacUserDefaults>(std::move(calls), domainFile(m_home, suiteName));
    return suite->second.get();
}

} // namespace quindle
