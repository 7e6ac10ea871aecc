#include "common/TranslationChoice.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct LanguagesCase
{
    const char* languages; ///< as QLocale::uiLanguages gives them, with commas between them
    const char* tried;
};

TEST(TranslationChoiceTest, TriesTheLanguagesInTheirOrderUntilEnglish)
{
    constexpr LanguagesCase table[]{
        {"C", ""},
        {"en-US,en-Latn-US,en", ""},
        {"en-GB", ""},
        {"de-DE,de-Latn-DE,de", "de_DE,de,de_Latn_DE,de_Latn"},
        {"de-CH", "de_CH,de"},
        {"pt-BR,pt", "pt_BR,pt"},
        {"zh-CN,zh-Hans-CN,zh", "zh_CN,zh"},
        {"zh-SG,zh-Hans-SG", "zh_CN,zh"},
        {"zh-TW,zh-Hant-TW", "zh_TW,zh,zh_Hant_TW,zh_Hant"},
        {"en,en-US,de,de-DE", ""},
        {"da,en,de", "da"},
        {"fr,de", "fr,de"},
        {"", ""},
    };
    for (const auto& [languages, tried] : table) {
        const QStringList given = QString::fromLatin1(languages).split(u',', Qt::SkipEmptyParts);
        EXPECT_EQ(translationsToTry(given).join(u','), QString::fromLatin1(tried)) << languages;
    }
}

} // namespace
