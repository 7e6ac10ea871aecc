#pragma once

#include <algorithm>

#include <QStringList>
#include <gtest/gtest.h>

#include "platform/LoginItems.h"
#include "tests/support/QtPrinters.h"

namespace quindle {

/// What every back end's login items must do. A back end instantiates the suite with a type that makes a list
/// with two items of others:
///
///     struct Maker
///     {
///         LoginItems& items();
///         QString helper(); ///< the URL by which the helper's bundle is inserted, without a slash at its
///         end
///     };
template <typename Maker>
class LoginItemsContract : public testing::Test
{
protected:
    LoginItems& items() { return m_maker.items(); }
    QString helper() { return m_maker.helper(); }
    QString identifier() const { return QStringLiteral("com.fernhollow.Quindle-Helper"); }

    QStringList urls()
    {
        QStringList urls;
        const auto list = items().snapshot();
        for (const LoginItems::Item item : list.value())
            urls.append(items().resolve(item).value_or(QString()));
        return urls;
    }

    LoginItems::Item helperItem() { return items().snapshot().value().at(0); }

private:
    Maker m_maker;
};

TYPED_TEST_SUITE_P(LoginItemsContract);

TYPED_TEST_P(LoginItemsContract, InsertsBeforeTheFirstAndTakesOut)
{
    const QStringList others = this->urls();
    ASSERT_EQ(others.size(), 2);
    this->items().insertBeforeFirst(this->helper());
    EXPECT_EQ(this->urls(), QStringList(this->helper() + u'/') + others); // a bundle is a folder
    this->items().remove(this->helperItem());
    EXPECT_EQ(this->urls(), others);
}

TYPED_TEST_P(LoginItemsContract, TakesOutAnItemOfOthers)
{
    const QStringList others = this->urls();
    const auto items = this->items().snapshot().value();
    this->items().remove(items.at(1));
    EXPECT_EQ(this->urls(), QStringList(others.first()));
}

TYPED_TEST_P(LoginItemsContract, AnItemKeepsItsMeaning)
{
    const auto items = this->items().snapshot().value();
    const auto url = this->items().resolve(items.at(1));
    this->items().insertBeforeFirst(this->helper());
    EXPECT_EQ(this->items().snapshot()->size(), 3U);
    EXPECT_EQ(this->items().resolve(items.at(1)), url);
    this->items().remove(items.at(1));
    EXPECT_FALSE(this->urls().contains(*url));
}

TYPED_TEST_P(LoginItemsContract, WhatIsGoneOrNeverWasChangesNothing)
{
    this->items().insertBeforeFirst(this->helper());
    const LoginItems::Item item = this->helperItem();
    this->items().remove(item);
    const QStringList others = this->urls();
    for (const LoginItems::Item other : {item, 1000, -1})
        this->items().remove(other);
    EXPECT_EQ(this->items().resolve(1000), std::nullopt);
    EXPECT_EQ(this->items().resolve(-1), std::nullopt);
    EXPECT_EQ(this->urls(), others);
}

TYPED_TEST_P(LoginItemsContract, TheEnabledIdentifierIsAnItem)
{
    const QStringList others = this->urls();
    for (int time = 0; time < 2; ++time) {
        this->items().setEnabled(this->identifier(), true);
        EXPECT_EQ(this->urls(), QStringList(this->helper() + u'/') + others);
    }
    for (int time = 0; time < 2; ++time) {
        this->items().setEnabled(this->identifier(), false);
        EXPECT_EQ(this->urls(), others);
    }
}

TYPED_TEST_P(LoginItemsContract, BothWaysAreOneItem)
{
    const QStringList others = this->urls();
    this->items().insertBeforeFirst(this->helper());
    this->items().setEnabled(this->identifier(), true);
    EXPECT_EQ(this->urls().size(), others.size() + 1);
    this->items().setEnabled(this->identifier(), false);
    EXPECT_EQ(this->urls(), others);
    this->items().setEnabled(this->identifier(), true);
    this->items().remove(this->helperItem());
    EXPECT_EQ(this->urls(), others);
}

REGISTER_TYPED_TEST_SUITE_P(LoginItemsContract, InsertsBeforeTheFirstAndTakesOut, TakesOutAnItemOfOthers,
                            AnItemKeepsItsMeaning, WhatIsGoneOrNeverWasChangesNothing,
                            TheEnabledIdentifierIsAnItem, BothWaysAreOneItem);

} // namespace quindle
