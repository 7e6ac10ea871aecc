#include "widgets/BoundControls.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QVBoxLayout>

#include "tests/preferences/Input.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct BoundControlsTest : testing::Test
{
    BoundControlsTest()
    {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(&field);
        column->addWidget(&other);
        QObject::connect(&field, &BoundLineEdit::committed, &field, [this] { ++commits; });
        field.setBoundText(QStringLiteral("stored"));
        test::showActive(window);
        field.setFocus();
        field.end(false);
    }

    QWidget window;
    BoundLineEdit field;
    QPushButton other;
    int commits = 0;
};

TEST_F(BoundControlsTest, FillingCommitsNothing)
{
    ASSERT_TRUE(field.hasFocus());
    field.setBoundText(QStringLiteral("other"));
    EXPECT_EQ(field.text(), QStringLiteral("other"));
    other.setFocus();
    EXPECT_EQ(commits, 0);
}

TEST_F(BoundControlsTest, ReturnCommitsOnce)
{
    test::type(field, QStringLiteral("x"));
    EXPECT_EQ(commits, 0);
    test::pressKey(field, Qt::Key_Return);
    EXPECT_EQ(commits, 1);
    other.setFocus();
    EXPECT_EQ(commits, 1);
    EXPECT_EQ(field.text(), QStringLiteral("storedx"));
}

TEST_F(BoundControlsTest, LeavingCommitsAChangeOnce)
{
    test::type(field, QStringLiteral("x"));
    other.setFocus();
    EXPECT_EQ(commits, 1);
    field.setFocus();
    other.setFocus();
    EXPECT_EQ(commits, 1);
}

TEST_F(BoundControlsTest, LeavingWithTheOldTextCommitsNothing)
{
    test::type(field, QStringLiteral("x"));
    test::pressKey(field, Qt::Key_Backspace);
    ASSERT_EQ(field.text(), QStringLiteral("stored"));
    other.setFocus();
    EXPECT_EQ(commits, 0);
}

TEST_F(BoundControlsTest, DoesNotWriteOverTyping)
{
    test::type(field, QStringLiteral("x"));
    field.setBoundText(QStringLiteral("elsewhere"));
    EXPECT_EQ(field.text(), QStringLiteral("storedx"));
    other.setFocus();
    EXPECT_EQ(commits, 1);
    field.setBoundText(QStringLiteral("elsewhere"));
    EXPECT_EQ(field.text(), QStringLiteral("elsewhere"));
}

} // namespace
