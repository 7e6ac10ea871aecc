#include "preferences/MenuBarSettingRule.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

namespace quindle {

namespace {

struct Case
{
    const char* name;
    qint64 row;
    const char* text;
    const char* kept; ///< null for none
    const char* textAfter;
    const char* keptAfter;
};

MenuBarTexts texts(const char* text, const char* kept)
{
    return {QString::fromLatin1(text),
            kept ? std::optional(QString::fromLatin1(kept)) : std::optional<QString>()};
}

class MenuBarSettingRule : public testing::TestWithParam<Case>
{
};

} // namespace

TEST_P(MenuBarSettingRule, keepsTheUsersText)
{
    const Case& c = GetParam();
    const MenuBarTexts after = textsAfterChoosing(c.row, texts(c.text, c.kept));
    const MenuBarTexts wanted = texts(c.textAfter, c.keptAfter);
    EXPECT_EQ(after.customStatusBar, wanted.customStatusBar);
    EXPECT_EQ(after.statusBarString, wanted.statusBarString);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MenuBarSettingRule,
    testing::Values(Case{"standardKeepsTheOwnText", 0, "%w W", nullptr, "%p%", "%w W"},
                    Case{"standardKeepsTheNewestText", 0, "%w W", "%r", "%p%", "%w W"},
                    Case{"standardKeepsAnEmptyText", 0, "", "%r", "%p%", ""},
                    Case{"standardOfStandardKeepsWhatIsKept", 0, "%p%", "%r", "%p%", "%r"},
                    Case{"standardOfStandardKeepsNothing", 0, "%p%", nullptr, "%p%", nullptr},
                    Case{"customBringsTheKeptTextBack", 1, "%p%", "%w W", "%w W", "%w W"},
                    Case{"customBringsAnEmptyTextBack", 1, "%p%", "", "", ""},
                    Case{"customLeavesATextWrittenElsewhere", 1, "%l", "%w W", "%l", "%w W"},
                    Case{"customWithNothingKept", 1, "%p%", nullptr, "%p%", nullptr},
                    Case{"anyOtherRowIsCustom", 2, "%p%", "%w W", "%w W", "%w W"}),
    [](const testing::TestParamInfo<Case>& c) { return std::string(c.param.name); });

} // namespace quindle
