#include "platform/macos/system/CfValues.h"

#include <cmath>
#include <limits>

#include <QDateTime>
#include <QTimeZone>

#include <gtest/gtest.h>

#include "tests/platform/macos/FakeCoreFoundation.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

/// Every object of Core Foundation that a case has made must be gone at its end.
class CfValues : public testing::Test
{
protected:
    ~CfValues() override { EXPECT_EQ(FakeObject::alive, m_aliveBefore); }

    static CfOwned<CFTypeRef> make(FakeObject::Type type) { return CfOwned<CFTypeRef>(new FakeObject(type)); }

    static FakeObject& in(const CfOwned<CFTypeRef>& owned)
    {
        return *const_cast<FakeObject*>(static_cast<const FakeObject*>(owned.get()));
    }

private:
    int m_aliveBefore = FakeObject::alive;
};

const QDateTime moment = QDateTime::fromMSecsSinceEpoch(1'700'000'000'250);

TEST_F(CfValues, EveryTypeComesBackAsItWas)
{
    const QVariant values[] = {
        u("text"),
        u(""),
        u("\xf0\x9f\x94\x8b \xc3\xa9"),
        qint64{0},
        qint64{-5496},
        std::numeric_limits<qint64>::min(),
        std::numeric_limits<qint64>::max(),
        0.5,
        -0.0,
        std::numeric_limits<double>::infinity(),
        true,
        false,
        QByteArray(),
        QByteArray("a\0b", 3),
        moment,
        QVariantList(),
        QVariantList{u("a"), qint64{1}, QVariantList{true}},
        QVariantMap(),
        QVariantMap{{u("a"), qint64{1}}, {u("b"), QVariantMap{{u("c"), 1.5}}}},
    };
    for (const QVariant& value : values) {
        const QVariant again = valueFromCf(cfFromValue(value).get());
        EXPECT_EQ(again.typeId(), value.typeId());
        EXPECT_EQ(again, value);
    }
}

TEST_F(CfValues, BooleansAndIntegersAreNotTheSame)
{
    EXPECT_EQ(valueFromCf(kCFBooleanTrue).typeId(), QMetaType::Bool);
    EXPECT_EQ(valueFromCf(cfFromValue(qint64{1}).get()).typeId(), QMetaType::LongLong);
    EXPECT_EQ(valueFromCf(cfFromValue(1).get()), QVariant(qint64{1}));
    EXPECT_EQ(valueFromCf(cfFromValue(1.0).get()).typeId(), QMetaType::Double);
}

TEST_F(CfValues, DatesCountFrom2001)
{
    const auto date = make(FakeObject::Date);
    const QDateTime begin(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());
    EXPECT_EQ(valueFromCf(date.get()).toDateTime(), begin);
    in(date).time = 0.25;
    EXPECT_EQ(valueFromCf(date.get()).toDateTime(), begin.addMSecs(250));
    EXPECT_EQ(valueFromCf(date.get()).toDateTime().timeSpec(), Qt::LocalTime);
    in(date).time = -978307200.0;
    EXPECT_EQ(valueFromCf(date.get()).toDateTime(), QDateTime::fromMSecsSinceEpoch(0));
}

TEST_F(CfValues, DatesThatAreNoneAreLeftOut)
{
    const auto date = make(FakeObject::Date);
    for (const double time : {std::nan(""), HUGE_VAL, -HUGE_VAL, 1e300}) {
        in(date).time = time;
        EXPECT_FALSE(valueFromCf(date.get()).isValid()) << time;
    }
    EXPECT_FALSE(cfFromValue(QDateTime()));
}

TEST_F(CfValues, ASetIsAnArray)
{
    const auto set = make(FakeObject::Set);
    in(set).members.push_back(cfFromValue(qint64{7}).release());
    EXPECT_EQ(valueFromCf(set.get()), QVariant(QVariantList{qint64{7}}));
}

TEST_F(CfValues, NothingAndOtherTypesAreNoValue)
{
    EXPECT_FALSE(valueFromCf(nullptr).isValid());
    const auto other = make(FakeObject::Other);
    EXPECT_FALSE(valueFromCf(other.get()).isValid());
    EXPECT_FALSE(cfFromValue(QVariant()));
    EXPECT_FALSE(cfFromValue(QVariant(QDate(2001, 1, 1))));
}

TEST_F(CfValues, WhatIsNoValueIsLeftOutOfWhatHoldsIt)
{
    const auto array = make(FakeObject::Array);
    in(array).members = {new FakeObject(FakeObject::Other), cfFromValue(true).release()};
    EXPECT_EQ(valueFromCf(array.get()), QVariant(QVariantList{true}));
    const auto dictionary = make(FakeObject::Dictionary);
    in(dictionary).entries = {{cfFromText(u("other")).release(), new FakeObject(FakeObject::Other)},
                              {cfFromValue(qint64{1}).release(), cfFromValue(true).release()},
                              {cfFromText(u("kept")).release(), cfFromValue(true).release()}};
    EXPECT_EQ(mapFromCf(dictionary.get()), QVariantMap({{u("kept"), true}}));
    EXPECT_EQ(valueFromCf(cfFromValue(QVariantList{QVariant(), true}).get()), QVariant(QVariantList{true}));
    EXPECT_EQ(mapFromCf(cfFromValue(QVariantMap{{u("a"), QVariant()}}).get()), QVariantMap());
}

TEST_F(CfValues, TextAndDictionaryOfAnythingElseAreEmpty)
{
    const auto number = cfFromValue(qint64{7});
    const auto text = cfFromText(u("seven"));
    EXPECT_EQ(textFromCf(text.get()), u("seven"));
    EXPECT_EQ(textFromCf(number.get()), QString());
    EXPECT_EQ(textFromCf(nullptr), QString());
    EXPECT_EQ(mapFromCf(text.get()), QVariantMap());
    EXPECT_EQ(mapFromCf(nullptr), QVariantMap());
}

TEST_F(CfValues, NestingHasAnEnd)
{
    CfOwned<CFTypeRef> nested = cfFromValue(true);
    for (int level = 0; level < 600; ++level) {
        CfOwned<CFTypeRef> outer = make(FakeObject::Array);
        in(outer).members.push_back(nested.release());
        nested = std::move(outer);
    }
    QVariant value = valueFromCf(nested.get());
    int levels = 0;
    for (; !value.toList().isEmpty(); ++levels)
        value = value.toList().constFirst();
    EXPECT_EQ(levels, 511);
}

} // namespace
