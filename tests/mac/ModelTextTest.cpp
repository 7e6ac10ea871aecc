#include "mac/ModelText.h"

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct ModelText : testing::Test
{
    std::optional<QString> text(const char* code)
    {
        return modelText(QString::fromLatin1(code), defaults, [this](const QString& asked) {
            questions.append(asked);
            return online;
        });
    }

    MemoryUserDefaults defaults;
    std::optional<QString> online;
    QStringList questions;
};

TEST_F(ModelText, TheKnownCodeNeedsNobody)
{
    defaults.values.insert(QStringLiteral("modelStringCache"),
                           QVariantMap{{QStringLiteral("F5YW"), QStringLiteral("(other)")}});
    EXPECT_EQ(text("F5YW"), QStringLiteral("(11-inch, Late 2013)"));
    EXPECT_TRUE(questions.isEmpty());
    EXPECT_TRUE(defaults.writes.isEmpty());
}

TEST_F(ModelText, NoCodeAsksNobody)
{
    online = QStringLiteral("(x)");
    EXPECT_EQ(text(""), std::nullopt);
    EXPECT_TRUE(questions.isEmpty());
}

TEST_F(ModelText, AnswersAreKeptUnshortened)
{
    online = QStringLiteral("(Retina 5K, Aluminium)");
    EXPECT_EQ(text("F5YX"), QStringLiteral("(5K, Al.)"));
    EXPECT_EQ(text("F5YX"), QStringLiteral("(5K, Al.)"));
    EXPECT_EQ(questions, QStringList{QStringLiteral("F5YX")});
    EXPECT_EQ(defaults.dictionary(QStringLiteral("modelStringCache")).value(QStringLiteral("F5YX")),
              QVariant(*online));
}

TEST_F(ModelText, NoAnswerIsAskedForAgain)
{
    EXPECT_EQ(text("F5YX"), std::nullopt);
    EXPECT_EQ(text("F5YX"), std::nullopt);
    EXPECT_EQ(questions.size(), 2);
    EXPECT_TRUE(defaults.writes.isEmpty());
}

TEST(ShortenedModelText, EveryOccurrenceInOrder)
{
    EXPECT_EQ(shortenedModelText(QStringLiteral("(Retina 5K, 27-inch, Late 2014)")),
              QStringLiteral("(5K, 27-inch, Late 2014)"));
    EXPECT_EQ(shortenedModelText(QStringLiteral("Retina 4K Retina 4K Aluminium aluminium Retina")),
              QStringLiteral("4K 4K Al. aluminium Retina"));
}

} // namespace
