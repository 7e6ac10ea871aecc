#include "widgets/controls/BoundControls.h"

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

TEST_F(BoundControlsTest, EscapeTakesBackWhatIsNotStored)
{
    test::type(field, QStringLiteral("x"));
    test::pressKey(field, Qt::Key_Escape);
    EXPECT_EQ(field.text(), QStringLiteral("stored"));
    EXPECT_TRUE(window.isVisible());
    other.setFocus();
    EXPECT_EQ(commits, 0);
}

TEST_F(BoundControlsTest, EscapeWithNothingToTakeBackIsTheWindows)
{
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&field, &escape);
    EXPECT_FALSE(escape.isAccepted());
    test::type(field, QStringLiteral("x"));
    test::pressKey(field, Qt::Key_Return);
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&field, &again);
    EXPECT_FALSE(again.isAccepted());
    EXPECT_EQ(field.text(), QStringLiteral("storedx"));
}

TEST_F(BoundControlsTest, AnnouncesWhenItsTextIsNotTheStoredOne)
{
    QList<bool> told;
    QObject::connect(&field, &BoundLineEdit::pendingChanged, &field, [&] { told.append(field.isPending()); });
    test::type(field, QStringLiteral("xy"));
    EXPECT_EQ(told, QList<bool>{true});
    test::pressKey(field, Qt::Key_Backspace);
    test::pressKey(field, Qt::Key_Backspace);
    EXPECT_EQ(told, (QList<bool>{true, false}));
    test::type(field, QStringLiteral("z"));
    test::pressKey(field, Qt::Key_Return);
    EXPECT_EQ(told, (QList<bool>{true, false, true, false}));
    field.setBoundText(QStringLiteral("elsewhere"));
    EXPECT_FALSE(field.isPending());
}

} // namespace
