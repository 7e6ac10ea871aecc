#include "preferences/panes/ParameterPopover.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "tests/preferences/Input.h"
#include "tests/preferences/SettingsFixture.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct ParameterPopoverTest : testing::Test
{
    ParameterPopoverTest()
    {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(&field);
        column->addWidget(&button);
        test::showActive(window);
        QObject::connect(&popover, &ParameterPopover::inserted, &popover, [this] { ++insertions; });
    }

    QTreeWidget& rows() { return *popover.findChild<QTreeWidget*>(); }

    // A row's text without the marks that fix its direction.
    QString cell(int row, int column)
    {
        return rows().topLevelItem(row)->text(column).remove(QChar(0x2066)).remove(QChar(0x2069));
    }

    QString values()
    {
        QStringList texts;
        for (int row = 0; row < rows().topLevelItemCount(); ++row)
            texts.append(cell(row, 2));
        return texts.join(u' ');
    }

    void clickRow(int row)
    {
        test::clickAt(*rows().viewport(), rows().visualItemRect(rows().topLevelItem(row)).center());
    }

    test::FixedTitle title;
    QWidget window;
    QLineEdit field;
    QPushButton button;
    ParameterPopover& popover = *new ParameterPopover(title, field);
    int insertions = 0;
};

TEST_F(ParameterPopoverTest, ListsEveryPlaceholderWithItsValue)
{
    popover.showRelativeTo(button);
    ASSERT_EQ(rows().topLevelItemCount(), 7);
    EXPECT_EQ(cell(5, 0), QStringLiteral("%mA"));
    EXPECT_EQ(cell(5, 1), QStringLiteral("Current in milliamperes"));
    EXPECT_EQ(values(), QStringLiteral(u"30.0 \u2B07\uFE0E 3:42 66.7 -12.4 -1043 293"));
}

TEST_F(ParameterPopoverTest, IsLiveWhileOpen)
{
    popover.showRelativeTo(button);
    title.values->isCharging = true;
    title.values->stateOfCharge = 70;
    popover.refresh();
    EXPECT_EQ(values(), QStringLiteral(u"30.0 \u2B06\uFE0E 3:42 70.0 -12.4 -1043 293"));
    title.values.reset();
    popover.refresh();
    EXPECT_EQ(values(), QStringLiteral(u"\u2013 \u2013 \u2013 \u2013 \u2013 \u2013 \u2013"));
    popover.close();
    title.values = TitleValues{};
    popover.showRelativeTo(button);
    EXPECT_EQ(cell(3, 2), QStringLiteral("0.0"));
}

TEST_F(ParameterPopoverTest, AClickInsertsAtTheCursor)
{
    field.setText(QStringLiteral("ab"));
    field.setCursorPosition(1);
    popover.showRelativeTo(button);
    clickRow(5);
    EXPECT_EQ(field.text(), QStringLiteral("a%mAb"));
    EXPECT_EQ(insertions, 1);
    EXPECT_FALSE(popover.isVisible());
    popover.showRelativeTo(button);
    clickRow(0);
    EXPECT_EQ(field.text(), QStringLiteral("a%mA%tb"));
    EXPECT_EQ(insertions, 2);
}

TEST_F(ParameterPopoverTest, WritingGoesOnAfterAnInsertion)
{
    for (const bool byMouse : {false, true}) {
        field.clear();
        button.setFocus();
        popover.showRelativeTo(button);
        if (byMouse)
            clickRow(2);
        else
            test::pressKey(rows(), Qt::Key_Return);
        ASSERT_EQ(QApplication::focusWidget(), &field) << byMouse;
        test::type(*QApplication::focusWidget(), QStringLiteral(" h"));
        EXPECT_EQ(field.text(), byMouse ? QStringLiteral("%r h") : QStringLiteral("%t h"));
    }
}

TEST_F(ParameterPopoverTest, OpeningItDoesNotLeaveTheField)
{
    int finished = 0;
    QObject::connect(&field, &QLineEdit::editingFinished, &field, [&] { ++finished; });
    field.setFocus();
    popover.showRelativeTo(button);
    test::pressKey(rows(), Qt::Key_Escape);
    EXPECT_EQ(finished, 0);
    EXPECT_EQ(QApplication::focusWidget(), &field);
}

TEST_F(ParameterPopoverTest, LeavesTheFieldFreeOnALowScreen)
{
    // As with a large font on a small screen: no room for all rows below, nor above.
    QFont large = window.font();
    large.setPixelSize(28);
    window.setFont(large);
    popover.setFont(large);
    const QRect screen = window.screen()->availableGeometry();
    window.setGeometry(screen.x(), screen.y() + screen.height() / 2 - 60, 300, 120);
    QApplication::processEvents();
    popover.showRelativeTo(button);
    const QRect written(field.mapToGlobal(QPoint()), field.size());
    const QRect place(popover.pos(), popover.size()); // without the frame that this display gives windows
    EXPECT_FALSE(place.intersects(written));
    EXPECT_GT(rows().verticalScrollBar()->maximum(), 0);
    EXPECT_LE(rows().columnWidth(0) + rows().columnWidth(1) + rows().columnWidth(2),
              rows().viewport()->width());
}

TEST_F(ParameterPopoverTest, WorksByKeyboard)
{
    popover.showRelativeTo(button);
    EXPECT_EQ(QApplication::focusWidget(), &rows());
    test::pressKey(rows(), Qt::Key_Down);
    test::pressKey(rows(), Qt::Key_Return);
    EXPECT_EQ(field.text(), QStringLiteral("%s"));
    for (const int key : {Qt::Key_Enter, Qt::Key_Space}) {
        popover.showRelativeTo(button);
        test::pressKey(rows(), Qt::Key_End);
        test::pressKey(rows(), key);
    }
    EXPECT_EQ(field.text(), QStringLiteral("%s%l%l"));
    EXPECT_EQ(insertions, 3);
    popover.showRelativeTo(button);
    test::pressKey(rows(), Qt::Key_Escape);
    EXPECT_FALSE(popover.isVisible());
}

TEST_F(ParameterPopoverTest, ShowsAllRowsInFull)
{
    title.values->timeRemaining = QString(60, u'8');
    popover.showRelativeTo(button);
    const QTreeWidget& list = rows();
    EXPECT_EQ(list.verticalScrollBar()->maximum(), 0);
    int columns = 0;
    for (int column = 0; column < list.columnCount(); ++column)
        columns += list.columnWidth(column);
    EXPECT_LE(columns, list.viewport()->width());
    EXPECT_GE(list.columnWidth(2), list.fontMetrics().horizontalAdvance(title.values->timeRemaining));
    const QRect last = list.visualItemRect(list.topLevelItem(6));
    EXPECT_TRUE(list.viewport()->rect().contains(last.bottomLeft()));
    EXPECT_GE(last.height(), list.fontMetrics().height());
}

TEST_F(ParameterPopoverTest, ReadsItsRowsAloud)
{
    popover.showRelativeTo(button);
    EXPECT_EQ(rows().topLevelItem(3)->data(0, Qt::AccessibleTextRole).toString(),
              QStringLiteral("%p, Charge in percent, now 66.7"));
    EXPECT_FALSE(rows().accessibleName().isEmpty());
    EXPECT_FALSE(popover.accessibleName().isEmpty());
}

} // namespace
