#include "preferences/panes/PlaceholderTable.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "menubar/TitleTemplate.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

TEST(PlaceholderTableTest, NamesEveryPlaceholderInItsOrder)
{
    QStringList texts;
    for (const Placeholder& placeholder : placeholderTable())
        texts.append(placeholder.text);
    EXPECT_EQ(texts.join(u' '), QStringLiteral("%t %s %r %p %w %mA %l"));
}

TEST(PlaceholderTableTest, EachIsReplacedAndHasItsOwnMeaning)
{
    const TitleValues values{30.0, true, QStringLiteral("3:42"), 66.66, -12.44, -1043, 293};
    QStringList meanings;
    QStringList titles;
    for (const Placeholder& placeholder : placeholderTable()) {
        meanings.append(latin(placeholder.meaning));
        titles.append(titleFromTemplate(placeholder.text, values));
    }
    EXPECT_EQ(titles.join(u' '), QStringLiteral(u"30.0 \u2B06\uFE0E 3:42 66.7 -12.4 -1043 293"));
    EXPECT_FALSE(meanings.contains(QString()));
    EXPECT_EQ(meanings.removeDuplicates(), 0);
}

TEST(PlaceholderTableTest, WhatIsNotKnownIsADash)
{
    const auto presentValues = [](const TitleValues& values) {
        QStringList texts;
        for (const Placeholder& placeholder : placeholderTable())
            texts.append(presentValue(placeholder, values));
        return texts.join(u' ');
    };
    TitleValues values{30.0, true, QStringLiteral("3:42"), 66.66, 12.44, 1043, 293};
    EXPECT_EQ(presentValues(values), QStringLiteral(u"30.0 \u2B06\uFE0E 3:42 66.7 12.4 1043 293"));
    values = {0.0, false, QString(), 0.0 / 0.0, 0.0, 0, 0, false, false, false};
    EXPECT_EQ(presentValues(values),
              QStringLiteral(u"\u2013 \u2B07\uFE0E \u2013 \u2013 \u2013 \u2013 \u2013"));
    values = {0.0, false, QStringLiteral("0:00"), 0.0, 0.0, 0, 1};
    EXPECT_EQ(presentValues(values), QStringLiteral(u"0.0 \u2B07\uFE0E 0:00 0.0 0.0 0 1"));
}

} // namespace
