#include "menubar/TitleTemplate.h"

#include <array>
#include <limits>

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TitleValues discharging()
{
    TitleValues values;
    values.temperature = 30;
    values.timeRemaining = QStringLiteral("2:05");
    values.stateOfCharge = 87;
    values.wattThroughput = 20;
    values.amperage = -1600;
    values.cycleCount = 293;
    return values;
}

TitleValues charging()
{
    TitleValues values = discharging();
    values.isCharging = true;
    values.amperage = 900;
    return values;
}

TitleValues full()
{
    TitleValues values = discharging();
    values.timeRemaining.clear();
    values.stateOfCharge = 100;
    values.amperage = 0;
    return values;
}

struct TemplateCase
{
    const char* name;
    TitleValues values;
    const char16_t* titleTemplate;
    const char16_t* title;
};

class TitleTemplate : public testing::TestWithParam<TemplateCase>
{
};

TEST_P(TitleTemplate, Replaces)
{
    const TemplateCase& row = GetParam();
    EXPECT_EQ(titleFromTemplate(QString::fromUtf16(row.titleTemplate), row.values),
              QString::fromUtf16(row.title));
}

const std::array cases{
    TemplateCase{"charge", discharging(), u"%p%", u"87.0%"},
    TemplateCase{"upward", charging(), u"%s %r", u"\u2B06\uFE0E 2:05"},
    TemplateCase{"downward", discharging(), u"%s", u"\u2B07\uFE0E"},
    TemplateCase{"fullIsDownward", full(), u"%s", u"\u2B07\uFE0E"},
    TemplateCase{"temperature", discharging(), u"%t", u"30.0"},
    TemplateCase{"watts", discharging(), u"%w W", u"20.0 W"},
    TemplateCase{"current", discharging(), u"%mA", u"-1600"},
    TemplateCase{"cycles", discharging(), u"%l", u"293"},
    TemplateCase{"unfinishedCurrent", discharging(), u"%m a %mB", u"%m a %mB"},
    TemplateCase{"capitals", discharging(), u"%P %T", u"%P %T"},
    TemplateCase{"every", discharging(), u"%p%p%p", u"87.087.087.0"},
    TemplateCase{"none", discharging(), u"Battery", u"Battery"},
    TemplateCase{"empty", discharging(), u"", u""},
    TemplateCase{"percentAfterPercent", discharging(), u"%%p", u"%87.0"},
    TemplateCase{"joinsToCharge", full(), u"%%rp", u"100.0"},
    TemplateCase{"joinsToWatts", full(), u"%%rw", u"20.0"},
    TemplateCase{"joinsToCurrent", full(), u"%%rmA", u"0"},
    TemplateCase{"joinsToCycles", full(), u"%%rl", u"293"},
    TemplateCase{"temperatureIsOver", full(), u"%%rt", u"%t"},
    TemplateCase{"directionIsOver", full(), u"%%rs", u"%s"},
    TemplateCase{"noFormats", discharging(), u"%1 %2 %n 100%", u"%1 %2 %n 100%"},
    TemplateCase{"markup", discharging(), u"<b>&x %p", u"<b>&x 87.0"},
    TemplateCase{"otherScripts", discharging(), u"\u05D0\u05D1 %p \U0001F50B\n%l",
                 u"\u05D0\u05D1 87.0 \U0001F50B\n293"},
};

INSTANTIATE_TEST_SUITE_P(All, TitleTemplate, testing::ValuesIn(cases),
                         [](const testing::TestParamInfo<TemplateCase>& row) {
                             return std::string(row.param.name);
                         });

TEST(TitleTemplateDefault, IsTheChargeInPercent)
{
    EXPECT_EQ(titleFromTemplate(defaultTitleTemplate(), discharging()), QStringLiteral("87.0%"));
}

TEST(TitleTemplateValues, TieGoesToEven)
{
    TitleValues values;
    values.stateOfCharge = 87.25;
    EXPECT_EQ(titleFromTemplate(QStringLiteral("%p"), values), QStringLiteral("87.2"));
}

TEST(TitleTemplateValues, NotFinite)
{
    TitleValues values;
    values.stateOfCharge = std::numeric_limits<double>::quiet_NaN();
    values.wattThroughput = -std::numeric_limits<double>::infinity();
    EXPECT_EQ(titleFromTemplate(QStringLiteral("%p% %w"), values), QStringLiteral("nan% -inf"));
}

TEST(TitleTemplateValues, WholeIntegers)
{
    TitleValues values;
    values.amperage = std::numeric_limits<qint64>::min();
    EXPECT_EQ(titleFromTemplate(QStringLiteral("%mA"), values), QStringLiteral("-9223372036854775808"));
}

TEST(TitleTemplateFigures, PassingOnesArePowerCurrentAndTime)
{
    for (const char* passing : {"%w", "%mA", "%r", "now %p% at %wW", "%%r"})
        EXPECT_TRUE(showsPassingFigures(QString::fromLatin1(passing))) << passing;
    for (const char* other : {"", "%", "%p%", "%t %s %l", "%m", "% w", "%R"})
        EXPECT_FALSE(showsPassingFigures(QString::fromLatin1(other))) << other;
}

TEST(TitleTemplateLength, LongTemplateIsExact)
{
    const QString title = titleFromTemplate(QStringLiteral("%p").repeated(2048), discharging());
    EXPECT_EQ(title, QStringLiteral("87.0").repeated(2048));
}

TEST(TitleTemplateLength, WhatIsBeyondTheLimitIsNotShown)
{
    const QString filling(4095, u'x');
    EXPECT_EQ(titleFromTemplate(filling + QStringLiteral("yz%p"), discharging()), filling + u'y');
    EXPECT_EQ(titleFromTemplate(filling + QStringLiteral("%p"), discharging()), filling + u'%');
    EXPECT_EQ(titleFromTemplate(filling + QStringLiteral("😀"), discharging()), filling);
}

} // namespace
