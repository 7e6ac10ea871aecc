#include "inspect/BarLines.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

BarState discharging(int percentage, const char* colourClass, const char* title = "64.0%")
{
    return {.title = QString::fromUtf8(title),
            .toolTip = QStringLiteral("Discharging with 9.0 W\n1:35 left"),
            .icon = QStringLiteral("#bat24"),
            .state = QStringLiteral("discharging"),
            .percentage = percentage,
            .colourClass = QLatin1String(colourClass)};
}

BarState noBattery()
{
    return {.title = QString(),
            .toolTip = QStringLiteral("No battery"),
            .icon = QStringLiteral("AppIconBW"),
            .state = QStringLiteral("no-battery"),
            .percentage = std::nullopt,
            .colourClass = QStringLiteral("no-battery")};
}

BarState charging()
{
    BarState state = discharging(9, "critical");
    state.state = QStringLiteral("charging");
    return state;
}

struct LineRow
{
    const char* what;
    BarFormat format;
    BarState state;
    const char* line;
};

const LineRow lineRows[] = {
    {"text", BarFormat::Text, discharging(64, "good"), "64.0%"},
    {"text without battery", BarFormat::Text, noBattery(), ""},
    {"text that would break the line", BarFormat::Text, discharging(64, "good", "a\nb\tc\u2028d\x1b[1m"),
     "a b c d [1m"},
    {"text beyond ASCII", BarFormat::Text, discharging(64, "good", "\u2B07\uFE0E 64"), "\u2B07\uFE0E 64"},
    {"json", BarFormat::Json, discharging(64, "good"),
     R"({"class":"good","icon":"#bat24","percentage":64,"state":"discharging","title":"64.0%",)"
     R"("tooltip":"Discharging with 9.0 W\u000a1:35 left"})"},
    {"json without battery", BarFormat::Json, noBattery(),
     R"({"class":"no-battery","icon":"AppIconBW","percentage":null,"state":"no-battery","title":"",)"
     R"("tooltip":"No battery"})"},
    {"json keeps the title", BarFormat::Json, discharging(64, "good", "a\nb <\"&>"),
     R"({"class":"good","icon":"#bat24","percentage":64,"state":"discharging","title":"a\u000ab <\"&>",)"
     R"("tooltip":"Discharging with 9.0 W\u000a1:35 left"})"},
    {"i3bar", BarFormat::I3bar, discharging(64, "good"),
     R"([{"_class":"good","_icon":"#bat24","_percentage":64,"_state":"discharging","full_text":"64.0%",)"
     R"("name":"quindle","short_text":"64%","urgent":false}])"},
    {"i3bar warns", BarFormat::I3bar, discharging(30, "warning"),
     R"([{"_class":"warning","_icon":"#bat24","_percentage":30,"_state":"discharging","color":"#d79921",)"
     R"("full_text":"64.0%","name":"quindle","short_text":"30%","urgent":false}])"},
    {"i3bar is urgent", BarFormat::I3bar, discharging(9, "critical"),
     R"([{"_class":"critical","_icon":"#bat24","_percentage":9,"_state":"discharging","color":"#fb4934",)"
     R"("full_text":"64.0%","name":"quindle","short_text":"9%","urgent":true}])"},
    {"i3bar is not urgent while charging", BarFormat::I3bar, charging(),
     R"([{"_class":"critical","_icon":"#bat24","_percentage":9,"_state":"charging","color":"#fb4934",)"
     R"("full_text":"64.0%","name":"quindle","short_text":"9%","urgent":false}])"},
    {"i3bar hides an empty text", BarFormat::I3bar, noBattery(),
     R"([{"_class":"no-battery","_icon":"AppIconBW","_percentage":null,"_state":"no-battery",)"
     R"("full_text":"","name":"quindle","urgent":false}])"},
    {"waybar", BarFormat::Waybar, discharging(64, "good"),
     R"({"alt":"discharging","class":"good","icon":"#bat24","percentage":64,"text":"64.0%",)"
     R"("tooltip":"Discharging with 9.0 W\u000a1:35 left"})"},
    {"waybar reads markup", BarFormat::Waybar, discharging(64, "good", "<b> & \"%\""),
     R"({"alt":"discharging","class":"good","icon":"#bat24","percentage":64,)"
     R"("text":"&lt;b&gt; &amp; &quot;%&quot;","tooltip":"Discharging with 9.0 W\u000a1:35 left"})"},
    {"waybar hides an empty text", BarFormat::Waybar, noBattery(),
     R"({"alt":"no-battery","class":"no-battery","icon":"AppIconBW","text":"","tooltip":"No battery"})"},
};

TEST(BarLines, Table)
{
    for (const LineRow& row : lineRows)
        EXPECT_EQ(QString::fromUtf8(barLine(row.format, row.state)), QString::fromUtf8(row.line)) << row.what;
}

TEST(BarLines, TheI3barProtocolIsAnEndlessArray)
{
    EXPECT_EQ(barHeader(BarFormat::I3bar), "{\"version\":1}\n[\n");
    EXPECT_EQ(barSeparator(BarFormat::I3bar), ",");
    for (const BarFormat format : {BarFormat::Text, BarFormat::Json, BarFormat::Waybar}) {
        EXPECT_EQ(barHeader(format), QByteArray());
        EXPECT_EQ(barSeparator(format), QByteArray());
    }
}

TEST(BarFormat, Names)
{
    EXPECT_EQ(barFormatNamed(QStringLiteral("text")), BarFormat::Text);
    EXPECT_EQ(barFormatNamed(QStringLiteral("json")), BarFormat::Json);
    EXPECT_EQ(barFormatNamed(QStringLiteral("i3bar")), BarFormat::I3bar);
    EXPECT_EQ(barFormatNamed(QStringLiteral("waybar")), BarFormat::Waybar);
    for (const char* name : {"", "Text", "i3", "text "})
        EXPECT_EQ(barFormatNamed(QString::fromLatin1(name)), std::nullopt) << name;
}

} // namespace
