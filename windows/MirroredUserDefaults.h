#pragma once

#include <optional>

#include "platform/UserDefaults.h"

namespace quindle {

class HelperEnd;

/// A settings database of a recorded computer, which is in memory: what is stored here is stored in the
/// helper's memory too.
class MirroredUserDefaults : public UserDefaults
{
public:
    /// `name` as in RecordedComputer.
    MirroredUserDefaults(UserDefaults& below, QString name, HelperEnd& helper);

    QVariant object(const QString& key) const override { return m_below.object(key); }
    void setObject(const QString& key, const QVariant& value) override;
    QVariantMap dictionaryRepresentation() const override { return m_below.dictionaryRepresentation(); }
    QString file() const override { return m_below.file(); }

private:
    UserDefaults& m_below;
    QString m_name;
    HelperEnd& m_helper;
};

/// Both databases.
class MirroredUserDefaultsDatabases : public UserDefaultsDatabases
{
public:
    MirroredUserDefaultsDatabases(UserDefaultsDatabases& below, HelperEnd& helper);

    UserDefaults& standard() override { return m_standard; }
    UserDefaults* suite(const QString& suiteName) override;

private:
    MirroredUserDefaults m_standard;
    std::optional<MirroredUserDefaults> m_group;
};

} // namespace quindle
