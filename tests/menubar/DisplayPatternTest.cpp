#include "menubar/DisplayPattern.h"

#include <limits>

#include <gtest/gtest.h>

#include <QLocale>
#include <QVariantMap>

#include "menubar/ValueTexts.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

struct ValueCase
{
    QVariant value;
    const char* format;
    QString text;
};

TEST(ValueTexts, Formats)
{
    const ValueCase cases[]{
        {QStringLiteral("Simplo"), "", QStringLiteral("Simplo")},
        {qint64(6000), "", QStringLiteral("6000")},
        {qint64(6000), "grouped", QStringLiteral("6,000")},
        {qint64(0), "grouped", QStringLiteral("0")},
        {qint64(0), "capacity", QString()},
        {qint64(-3), "capacity", QString()},
        {qint64(7150), "capacity", QStringLiteral("7,150")},
        {83.916, "percent", QStringLiteral("83.9 %")},
        {87.25, "percent", QStringLiteral("87.2 %")},
        {66.666, "figure", QStringLiteral("66.7")},
        {12.44, "watts", QStringLiteral("12.4 W")},
        {qint64(293), "cycles", QStringLiteral("293 cycles")},
        {qint64(1), "cycles", QStringLiteral("1 cycle")},
        {qint64(1234), "cycles", QStringLiteral("1,234 cycles")},
        {nan, "percent", QString()},
        {-std::numeric_limits<double>::infinity(), "watts", QString()},
        {QVariant(), "grouped", QString()},
        {QStringLiteral(" "), "", QString()},
        {QStringLiteral("12"), "watts", QString()},
        {qint64(1), "nosuch", QString()},
    };
    QLocale::setDefault(QLocale::c());
    for (const ValueCase& row : cases)
        EXPECT_EQ(valueText(row.value, QString::fromLatin1(row.format)), row.text) << row.format;
}

TEST(ValueTexts, Groups)
{
    const std::pair<qint64, const char*> cases[]{
        {0, "0"},
        {999, "999"},
        {1000, "1,000"},
        {-999, "-999"},
        {-1600, "-1,600"},
        {-123456, "-123,456"},
        {1234567, "1,234,567"},
        {std::numeric_limits<qint64>::min(), "-9,223,372,036,854,775,808"},
    };
    for (const auto& [number, text] : cases)
        EXPECT_EQ(groupedText(number, QStringLiteral(",")), QString::fromLatin1(text));
}

TEST(ValueTexts, PointNeverSeparatesGroups)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(valueText(qint64(6000), QStringLiteral("grouped")), QStringLiteral(u"6\u202F000"));
    QLocale::setDefault(QLocale::c());
}

TEST(ValueTexts, TellsSomething)
{
    EXPECT_TRUE(tellsSomething(0));
    EXPECT_TRUE(tellsSomething(true));
    EXPECT_FALSE(tellsSomething(false));
    EXPECT_FALSE(tellsSomething(QString()));
    EXPECT_FALSE(tellsSomething(QVariant::fromValue<QObject*>(nullptr)));
}

struct PatternCase
{
    const char16_t* pattern;
    QVariantMap values;
    std::optional<QString> text;
};

TEST(DisplayPattern, Texts)
{
    const QString full = QStringLiteral("full");
    const QString now = QStringLiteral("now");
    const PatternCase cases[]{
        {u"{now:grouped} of {full:grouped} mAh",
         {{now, 4000}, {full, 6000}},
         QStringLiteral("4,000 of 6,000 mAh")},
        {u"{now:grouped} of {full:grouped} mAh", {{now, 4000}}, QStringLiteral(u"4,000 of \u2013 mAh")},
        {u"{now:grouped} of {full:grouped} mAh", {}, std::nullopt},
        {u"{now} · {full}", {{now, now}, {full, full}}, QStringLiteral(u"now \u00B7 full")},
        {u"{now} · {full}", {{now, now}, {full, QString()}}, now},
        {u"{now} · {full}", {{now, nan}, {full, full}}, full},
        {u"{now|full}", {{full, full}}, full},
        {u"{now|full}", {{now, now}, {full, full}}, now},
        {u"Age", {}, QStringLiteral("Age")},
        {u"", {}, QString()},
        {u"{now", {{now, now}}, QStringLiteral("{now")},
        {u"%1 {now}",
         {{now, QStringLiteral("{full} %1 <b>")}, {full, full}},
         QStringLiteral("%1 {full} %1 <b>")},
    };
    for (const PatternCase& row : cases) {
        const DisplayPattern pattern(QString::fromUtf16(row.pattern));
        const auto text = pattern.text([&](const KeyPath& path) { return row.values.value(path.text()); });
        EXPECT_EQ(text, row.text) << QString::fromUtf16(row.pattern).toStdString();
    }
}

TEST(DisplayPattern, NamesItsPathsAndWrongFormats)
{
    const DisplayPattern pattern(QStringLiteral(u"{a|b.c:percent} x {d:wats} \u00B7 {e}"));
    QStringList paths;
    for (const KeyPath& path : pattern.paths())
        paths.append(path.text());
    EXPECT_EQ(paths, (QStringList{QStringLiteral("a"), QStringLiteral("b.c"), QStringLiteral("d"),
                                  QStringLiteral("e")}));
    EXPECT_EQ(pattern.unknownFormats(), QStringList{QStringLiteral("wats")});
}

} // namespace
