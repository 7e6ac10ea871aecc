#include "widgets/AccessiblePopups.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct AccessiblePopupsTest : testing::Test
{
    AccessiblePopupsTest()
    {
        QApplication::setApplicationName(QStringLiteral("tested"));
        exposePopups();
        application = QAccessible::queryAccessibleInterface(qApp);
    }

    QStringList windows() const
    {
        QStringList names;
        for (int i = 0; i < application->childCount(); ++i) {
            EXPECT_EQ(application->indexOfChild(application->child(i)), i);
            names.append(application->child(i)->text(QAccessible::Name));
        }
        names.sort();
        return names;
    }

    QAccessibleInterface* application = nullptr;
};

TEST_F(AccessiblePopupsTest, OpenPopupsAreAmongTheWindows)
{
    EXPECT_EQ(application->role(), QAccessible::Application);
    EXPECT_EQ(application->text(QAccessible::Name), QStringLiteral("tested"));
    EXPECT_EQ(windows(), QStringList());
    QWidget window;
    window.setWindowTitle(QStringLiteral("window"));
    window.show();
    QWidget popup(nullptr, Qt::Popup);
    popup.setWindowTitle(QStringLiteral("popup"));
    new QLabel(QStringLiteral("content"), &popup);
    popup.show();
    EXPECT_EQ(windows(), (QStringList{QStringLiteral("popup"), QStringLiteral("window")}));
    QAccessibleInterface* shown = QAccessible::queryAccessibleInterface(&popup);
    EXPECT_EQ(shown->parent(), application);
    ASSERT_EQ(shown->childCount(), 1);
    EXPECT_EQ(shown->child(0)->text(QAccessible::Name), QStringLiteral("content"));
    popup.hide();
    EXPECT_EQ(windows(), QStringList{QStringLiteral("window")});
    EXPECT_EQ(application->child(5), nullptr);
}

} // namespace
