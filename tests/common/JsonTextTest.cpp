#include "common/JsonText.h"

#include <limits>

#include <gtest/gtest.h>

#include <QDateTime>
#include <QTimeZone>

using namespace quindle;

namespace {

struct TextRow
{
    QVariant value;
    const char* json;
};

TEST(JsonText, Values)
{
    const QDateTime moment(QDate(2014, 3, 2), QTime(0, 0, 0, 999), QTimeZone::utc());
    const TextRow rows[] = {
        {QVariant(), "null"},
        {QVariant(true), "true"},
        {QVariant(false), "false"},
        {QVariant(7), "7"},
        {QVariant::fromValue<qint64>(-9223372036854775807LL - 1), "-9223372036854775808"},
        {QVariant(87.0), "87.0"},
        {QVariant(28.999999999999996), "28.999999999999996"},
        {QVariant(-0.0), "-0.0"},
        {QVariant(5e-05), "5e-05"},
        {QVariant(std::numeric_limits<double>::infinity()), "\"inf\""},
        {QVariant(-std::numeric_limits<double>::infinity()), "\"-inf\""},
        {QVariant(-std::numeric_limits<double>::quiet_NaN()), "\"nan\""},
        {QVariant(QString()), "\"\""},
        {QVariant(QStringLiteral("a\"\\\n\tß")), "\"a\\\"\\\\\\u000a\\u0009\u00df\""},
        {QVariant(QString(QChar(0x2028))), "\"\\u2028\""},
        {QVariant(QStringLiteral("😀")), "\"\\ud83d\\ude00\""},
        {QVariant(QByteArray("\x00\xff", 2)), "\"AP8=\""},
        {QVariant(moment), "\"2014-03-02T00:00:00+00:00\""},
        {QVariant(QDateTime()), "null"},
        {QVariantList{1, QVariant(), QStringLiteral("x")}, "[1,null,\"x\"]"},
        {QVariant(QStringList{QStringLiteral("x")}), "[\"x\"]"},
        {QVariantMap{{QStringLiteral("b"), 1}, {QStringLiteral("a\""), QVariantMap()}},
         "{\"a\\\"\":{},\"b\":1}"},
    };
    for (const TextRow& row : rows)
        EXPECT_EQ(jsonText(row.value).toStdString(), row.json);
}

} // namespace
