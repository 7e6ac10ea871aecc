#include "preferences/RadioMatrix.h"

#include <gtest/gtest.h>

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

TEST_F(RadioMatrixTest, TellsOfClicksAndArrowKeys)
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

} // namespace
