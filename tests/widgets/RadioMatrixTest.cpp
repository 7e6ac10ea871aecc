#include "widgets/controls/RadioMatrix.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QRadioButton>

#include "tests/preferences/Input.h"

using namespace quindle;

namespace {

struct RadioMatrixTest : testing::Test
{
    RadioMatrixTest()
    {
        matrix.setCells({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        QObject::connect(&matrix, &RadioMatrix::clicked, &matrix, [this] { ++clicks; });
        cells = matrix.findChildren<QRadioButton*>();
    }

    RadioMatrix matrix;
    QList<QRadioButton*> cells;
    int clicks = 0;
};

TEST_F(RadioMatrixTest, SelectsByTagWithoutAClick)
{
    ASSERT_EQ(cells.size(), 3);
    EXPECT_EQ(matrix.selectedTag(), -1);
    for (const qint64 tag : {0, 2, 1}) {
        matrix.setSelectedTag(tag);
        EXPECT_EQ(matrix.selectedTag(), tag);
        EXPECT_TRUE(cells[tag]->isChecked());
    }
    for (const qint64 unknown : {qint64(7), qint64(-1), qint64(4294967296)}) {
        matrix.setSelectedTag(1);
        matrix.setSelectedTag(unknown);
        EXPECT_EQ(matrix.selectedTag(), -1) << unknown;
    }
    EXPECT_EQ(clicks, 0);
}

TEST_F(RadioMatrixTest, CellsStandBesideOrBelowEachOther)
{
    EXPECT_TRUE(matrix.isRow());
    test::showActive(matrix);
    EXPECT_EQ(cells[0]->y(), cells[1]->y());
    EXPECT_LT(cells[0]->x(), cells[1]->x());
    matrix.setIsRow(false);
    QApplication::processEvents();
    EXPECT_FALSE(matrix.isRow());
    EXPECT_EQ(cells[0]->x(), cells[1]->x());
    EXPECT_LT(cells[0]->y(), cells[1]->y());
}

TEST_F(RadioMatrixTest, AnnouncesClicksAndArrowKeys)
{
    cells[2]->click();
    EXPECT_EQ(matrix.selectedTag(), 2);
    EXPECT_EQ(clicks, 1);
    cells[0]->click();
    EXPECT_FALSE(cells[2]->isChecked());
    test::showActive(matrix);
    cells[0]->setFocus();
    test::pressKey(*cells[0], Qt::Key_Right);
    EXPECT_EQ(matrix.selectedTag(), 1);
    EXPECT_EQ(clicks, 3);
}

struct Choice
{
    const char* name;
    void (*choose)(QRadioButton& cell);
};

void PrintTo(const Choice& choice, std::ostream* out)
{
    *out << choice.name;
}

const Choice choices[] = {
    {"click",
     [](QRadioButton& cell) {
         test::clickAt(cell, {5, cell.height() / 2});
     }},
    {"space", [](QRadioButton& cell) { test::pressKey(cell, Qt::Key_Space, QStringLiteral(" ")); }},
    {"shortcut", // as a mnemonic does it
     [](QRadioButton& cell) {
         cell.animateClick();
         while (cell.isDown())
             QApplication::processEvents(QEventLoop::WaitForMoreEvents);
     }},
    {"assistiveTechnology",
     [](QRadioButton& cell) {
         QAccessibleActionInterface* actions =
             QAccessible::queryAccessibleInterface(&cell)->actionInterface();
         actions->doAction(actions->actionNames().at(0));
     }},
};

struct EveryChoice : RadioMatrixTest, testing::WithParamInterface<Choice>
{
};

TEST_P(EveryChoice, IsOneClickAlsoOfTheSelectedCell)
{
    test::showActive(matrix);
    for (int times = 1; times <= 2; ++times) {
        GetParam().choose(*cells[1]);
        EXPECT_EQ(matrix.selectedTag(), 1);
        EXPECT_EQ(clicks, times);
    }
}

INSTANTIATE_TEST_SUITE_P(Ways, EveryChoice, testing::ValuesIn(choices),
                         [](const auto& choice) { return std::string(choice.param.name); });

TEST_F(RadioMatrixTest, DisabledCellsCannotBeChosen)
{
    matrix.setSelectedTag(1);
    matrix.setEnabled(false);
    test::showActive(matrix);
    for (QRadioButton* cell : cells) {
        test::clickAt(*cell, {5, cell->height() / 2});
        QAccessibleActionInterface* actions = QAccessible::queryAccessibleInterface(cell)->actionInterface();
        EXPECT_FALSE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
        actions->doAction(QAccessibleActionInterface::pressAction());
        actions->doAction(QAccessibleActionInterface::toggleAction());
    }
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(matrix.selectedTag(), 1);
}

TEST_F(RadioMatrixTest, CellsAreRadioButtonsForAnAssistiveTechnology)
{
    matrix.setCells({QStringLiteral("&Fahrenheit && more"), QStringLiteral("b")});
    cells = matrix.findChildren<QRadioButton*>();
    matrix.setSelectedTag(0);
    QAccessibleInterface* first = QAccessible::queryAccessibleInterface(cells[0]);
    EXPECT_EQ(first->role(), QAccessible::RadioButton);
    EXPECT_EQ(first->text(QAccessible::Name), QStringLiteral("Fahrenheit & more"));
    EXPECT_EQ(first->text(QAccessible::Accelerator), QStringLiteral("Alt+F"));
    EXPECT_TRUE(first->state().checkable);
    EXPECT_TRUE(first->state().checked);
    EXPECT_TRUE(first->state().focusable);
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(cells[1])->state().checked);
    EXPECT_EQ(first->parent()->object(), &matrix);
}

} // namespace
