#include "platform/linux/statusitem/WatcherLink.h"

#include <gtest/gtest.h>

namespace quindle {
namespace {

TEST(ListsItemOf, everyWayThatWatchersWriteEntries)
{
    const QString name = QStringLiteral(":1.8");
    const QString other = QStringLiteral(":1.3/StatusNotifierItem");
    EXPECT_TRUE(listsItemOf(name, {other, QStringLiteral(":1.8/StatusNotifierItem")}));
    EXPECT_TRUE(listsItemOf(name, {QStringLiteral(":1.8@/StatusNotifierItem")}));
    EXPECT_TRUE(listsItemOf(name, {QStringLiteral(":1.8")}));
}

TEST(ListsItemOf, otherConnectionsAreOthers)
{
    const QString name = QStringLiteral(":1.8");
    EXPECT_FALSE(listsItemOf(name, {}));
    EXPECT_FALSE(listsItemOf(name, {QStringLiteral(":1.80/StatusNotifierItem")}));
    EXPECT_FALSE(listsItemOf(name, {QStringLiteral("/StatusNotifierItem")}));
}

} // namespace
} // namespace quindle
