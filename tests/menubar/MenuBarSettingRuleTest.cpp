#include "menubar/MenuBarSettingRule.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

namespace quindle {

namespace {

struct SettingCase
{
    const char* name;
    qint64 before;
    qint64 row;
    const char* text;
    const char* parked; ///< null for none
    const char* textAfter;
    const char* parkedAfter;
};

MenuBarTexts texts(const char* text, const char* parked)
{
    return {QString::fromLatin1(text),
            parked ? std::optional(QString::fromLatin1(parked)) : std::optional<QString>()};
}

class MenuBarSettingRule : public testing::TestWithParam<SettingCase>
{
};

} // namespace

TEST_P(MenuBarSettingRule, keepsTheUsersText)
{
    const SettingCase& c = GetParam();
    const MenuBarTexts after = textsAfterChoosing(c.before, c.row, texts(c.text, c.parked));
    const MenuBarTexts wanted = texts(c.textAfter, c.parkedAfter);
    EXPECT_EQ(after.customStatusBar, wanted.customStatusBar);
    EXPECT_EQ(after.parked, wanted.parked);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MenuBarSettingRule,
    testing::Values(SettingCase{"standardParksTheOwnText", 1, 0, "%w W", nullptr, "%p%", "%w W"},
                    SettingCase{"standardParksTheNewestText", 1, 0, "%w W", "%r", "%p%", "%w W"},
                    SettingCase{"standardParksAnEmptyText", 1, 0, "", "%r", "%p%", ""},
                    SettingCase{"standardParksATextWrittenElsewhere", 0, 0, "%w W", "%r", "%p%", "%w W"},
                    SettingCase{"standardOfStandardKeepsWhatIsParked", 0, 0, "%p%", "%r", "%p%", "%r"},
                    SettingCase{"standardOfStandardParksNothing", 0, 0, "%p%", nullptr, "%p%", nullptr},
                    SettingCase{"customBringsTheParkedTextBack", 0, 1, "%p%", "%w W", "%w W", "%w W"},
                    SettingCase{"customBringsAnEmptyTextBack", 0, 1, "%p%", "", "", ""},
                    SettingCase{"customLeavesATextWrittenElsewhere", 0, 1, "%l", "%w W", "%l", "%w W"},
                    SettingCase{"customWithNothingParked", 0, 1, "%p%", nullptr, "%p%", nullptr},
                    SettingCase{"customAgainLeavesTheText", 1, 1, "%p%", "%w W", "%p%", "%w W"},
                    SettingCase{"anyOtherRowIsCustom", 0, 2, "%p%", "%w W", "%w W", "%w W"}),
    [](const testing::TestParamInfo<SettingCase>& c) { return std::string(c.param.name); });

TEST(MenuBarRowInForce, isTheOneOfTheTextThatIsShown)
{
    const QString standard = QStringLiteral("%p%");
    const QString own = QStringLiteral("%w W");
    EXPECT_EQ(rowInForce(0, standard), 0);
    EXPECT_EQ(rowInForce(0, own), 1);
    EXPECT_EQ(rowInForce(0, QString()), 1) << "an empty title is a text of one's own";
    EXPECT_EQ(rowInForce(1, own), 1);
    EXPECT_EQ(rowInForce(1, standard), 1) << "it was chosen";
}

} // namespace quindle
