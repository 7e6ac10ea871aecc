#pragma once

#include <limits>
#include <memory>

#include <QDateTime>
#include <QTimeZone>
#include <gtest/gtest.h>

#include "platform/UserDefaults.h"
#include "tests/support/QtPrinters.h"

namespace quindle {

/// What every back end's settings databases must do. A back end instantiates the suite with a type that makes
/// its databases, empty:
///
///     struct Maker { UserDefaultsDatabases& databases(); };
///     INSTANTIATE_TYPED_TEST_SUITE_P(Linux, UserDefaultsContract, Maker);
template <typename Maker>
class UserDefaultsContract : public testing::Test
{
protected:
    UserDefaults& standard() { return m_maker.databases().standard(); }
    UserDefaults* group() { return m_maker.databases().suite(QStringLiteral("group.fernhollow.Quindle")); }

private:
    Maker m_maker;
};

TYPED_TEST_SUITE_P(UserDefaultsContract);

TYPED_TEST_P(UserDefaultsContract, EmptyHoldsNothing)
{
    EXPECT_FALSE(this->standard().object(QStringLiteral("key")).isValid());
    EXPECT_EQ(this->standard().integer(QStringLiteral("key")), 0);
    EXPECT_TRUE(this->standard().dictionary(QStringLiteral("key")).isEmpty());
    EXPECT_TRUE(this->standard().dictionaryRepresentation().isEmpty());
}

TYPED_TEST_P(UserDefaultsContract, KeepsTypeAndValue)
{
    const QDateTime date(QDate(2026, 2, 28), QTime(23, 59, 58), QTimeZone::utc());
    const QVariantMap values{
        {QStringLiteral("yes"), true},
        {QStringLiteral("no"), false},
        {QStringLiteral("one"), qint64(1)},
        {QStringLiteral("negative"), qint64(-1600)},
        {QStringLiteral("greatest"), std::numeric_limits<qint64>::max()},
        {QStringLiteral("least"), std::numeric_limits<qint64>::min()},
        {QStringLiteral("real"), 0.1},
        {QStringLiteral("wholeReal"), 2.0},
        {QStringLiteral("text"), QStringLiteral("%p% <b>&\"x\" \u00e4 \U0001f50b\n\t two")},
        {QStringLiteral("empty"), QString()},
        {QStringLiteral("longText"), QString(10'000, u'x')},
        {QStringLiteral("date"), date.toLocalTime()},
        {QStringLiteral("data"), QByteArray("\0\xff\x01", 3)},
        {QStringLiteral("list"), QVariantList{true, qint64(3), QStringLiteral("x"), QVariantList{}}},
        {QStringLiteral("dictionary"), QVariantMap{{QStringLiteral("a key"), 1.5}}},
    };
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        this->standard().setObject(entry.key(), entry.value());
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry) {
        const QVariant stored = this->standard().object(entry.key());
        EXPECT_EQ(stored.typeId(), entry->typeId()) << entry.key().toStdString();
        EXPECT_EQ(stored, entry.value()) << entry.key().toStdString();
    }
    EXPECT_EQ(this->standard().dictionaryRepresentation(), values);
}

TYPED_TEST_P(UserDefaultsContract, ReplacesAlsoByAnotherType)
{
    const QString key = QStringLiteral("key");
    for (const QVariant& value :
         {QVariant(true), QVariant(qint64(1)), QVariant(1.0), QVariant(QString(u'1'))}) {
        this->standard().setObject(key, value);
        EXPECT_EQ(this->standard().object(key).typeId(), value.typeId());
    }
    EXPECT_EQ(this->standard().dictionaryRepresentation().size(), 1);
}

TYPED_TEST_P(UserDefaultsContract, IntegersConvert)
{
    this->standard().setInteger(QStringLiteral("set"), -7);
    this->standard().setObject(QStringLiteral("text"), QStringLiteral(" 2x"));
    EXPECT_EQ(this->standard().object(QStringLiteral("set")), QVariant(qint64(-7)));
    EXPECT_EQ(this->standard().integer(QStringLiteral("set")), -7);
    EXPECT_EQ(this->standard().integer(QStringLiteral("text")), 2);
}

TYPED_TEST_P(UserDefaultsContract, DatabasesAreApart)
{
    ASSERT_NE(this->group(), nullptr);
    this->standard().setObject(QStringLiteral("key"), QStringLiteral("own"));
    EXPECT_FALSE(this->group()->object(QStringLiteral("key")).isValid());
    this->group()->setObject(QStringLiteral("key"), QStringLiteral("shared"));
    EXPECT_EQ(this->standard().object(QStringLiteral("key")), QVariant(QStringLiteral("own")));
    EXPECT_EQ(this->group(), this->group());
}

REGISTER_TYPED_TEST_SUITE_P(UserDefaultsContract, EmptyHoldsNothing, KeepsTypeAndValue,
                            ReplacesAlsoByAnotherType, IntegersConvert, DatabasesAreApart);

} // namespace quindle
