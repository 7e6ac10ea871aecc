#pragma once

#include "platform/UserDefaults.h"

namespace quindle {

class RecordedComputer;

/// One settings database of a recorded computer; what is written stays in memory, where later steps find it.
class RecordedUserDefaults : public UserDefaults
{
public:
    RecordedUserDefaults(RecordedComputer& computer, QString name);

    QVariant object(const QString& key) const override;
    void setObject(const QString& key, const QVariant& value) override;
    QVariantMap dictionaryRepresentation() const override;
    QString file() const override; ///< the machine file

private:
    RecordedComputer& m_computer;
    QString m_name;
};

/// Both databases; the suite is null where the machine file says that it cannot be opened.
class RecordedUserDefaultsDatabases : public UserDefaultsDatabases
{
public:
    explicit RecordedUserDefaultsDatabases(RecordedComputer& computer);

    UserDefaults& standard() override { return m_standard; }
    UserDefaults* suite(const QString& suiteName) override;

private:
    const RecordedComputer& m_computer;
    RecordedUserDefaults m_standard;
    RecordedUserDefaults m_group;
};

} // namespace quindle
