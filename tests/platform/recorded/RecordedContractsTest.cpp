#include "platform/Bundle.h"
#include "platform/recorded/RecordedPlatform.h"
#include "tests/platform/IORegistryContract.h"
#include "tests/platform/LoginItemsContract.h"
#include "tests/platform/UserDefaultsContract.h"

namespace quindle {

class NoBundle : public Bundle
{
public:
    QString path() const override { return {}; }
    std::optional<QVariantMap> infoDictionary() const override { return std::nullopt; }
};

struct RecordedDatabases
{
    UserDefaultsDatabases& databases() { return m_platform.userDefaults; }

private:
    NoBundle m_bundle;
    RecordedPlatform m_platform{{}, m_bundle};
};

class RecordedBatteries
{
public:
    IORegistry& registry() { return m_platform.registry; }
    PowerSources& powerSources() { return m_platform.powerSources; }

    void plugIn(qint64 milliampHours)
    {
        const QVariantMap battery{{QStringLiteral("CurrentCapacity"), milliampHours}};
        enter({{QStringLiteral("Registry"), QVariantMap{{QStringLiteral("AppleSmartBattery"), battery}}},
               {QStringLiteral("PowerSources"), QVariantList{QVariantMap()}}},
              {});
    }

    void pullOut()
    {
        enter({{QStringLiteral("PowerSources"), QVariantList()}},
              {QStringLiteral("Registry/AppleSmartBattery")});
    }

private:
    void enter(const QVariantMap& keys, const QStringList& remove)
    {
        m_platform.computer.enter({remove, keys, {}, 10});
    }

    NoBundle m_bundle;
    RecordedPlatform m_platform{{{QStringLiteral("PowerSources"), QVariantList()}}, m_bundle};
};

class RecordedItems
{
public:
    LoginItems& items() { return m_platform.loginItems; }
    QString helper() { return QStringLiteral("file:///opt/Quindle%20Helper/Quindle-Helper.app"); }

private:
    NoBundle m_bundle;
    RecordedPlatform m_platform{
        {{QStringLiteral("LoginItems"),
          QVariantList{QStringLiteral("file:///a"), QStringLiteral("file:///b")}},
         {QStringLiteral("Bundle"),
          QVariantMap{{QStringLiteral("Path"), QStringLiteral("/opt/Quindle Helper/Quindle-Helper.app")}}}},
        m_bundle};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, LoginItemsContract, RecordedItems);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, UserDefaultsContract, RecordedDatabases);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, IORegistryContract, RecordedBatteries);

} // namespace quindle
