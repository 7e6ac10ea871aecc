#pragma once

#include <map>

#include "platform/UserDefaults.h"
#include "platform/macos/SystemCalls.h"

namespace quindle {

/// One domain of the user's defaults, whose daemon keeps all processes' views the same.
class MacUserDefaults : public UserDefaults
{
public:
    MacUserDefaults(std::unique_ptr<DefaultsCalls> calls, QString file);

    QVariant object(const QString& key) const override { return m_calls->object(key); }
    void setObject(const QString& key, const QVariant& value) override;
    QVariantMap dictionaryRepresentation() const override { return m_calls->domain(); }
    QString file() const override { return m_file; }

private:
    std::unique_ptr<DefaultsCalls> m_calls;
    QString m_file;
};

class MacUserDefaultsDatabases : public UserDefaultsDatabases
{
public:
    /// Null for a domain that cannot be opened.
    using Open = std::function<std::unique_ptr<DefaultsCalls>(const QString& domain)>;

    /// `own` is the domain of the helper; `home` the user's folder.
    MacUserDefaultsDatabases(Open open, std::unique_ptr<DefaultsCalls> own, QString ownDomain, QString home);

    UserDefaults& standard() override { return m_standard; }
    UserDefaults* suite(const QString& suiteName) override;

private:
    Open m_open;
    QString m_home;
    MacUserDefaults m_standard;
    std::map<QString, std::unique_ptr<MacUserDefaults>> m_suites; ///< null: cannot be opened
};

} // namespace quindle
