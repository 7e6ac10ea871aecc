#include "widgets/controls/SegmentedControl.h"

#include <QAccessible>
#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRadioButton>
#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

class SegmentedControlTest : public testing::Test
{
protected:
    QWidget window;
    SegmentedControl control{
        {QStringLiteral("&General"), QStringLiteral("&Menu Bar"), QStringLiteral("&Update")}, &window};
    int actions = 0;

    SegmentedControlTest()
    {
        QObject::connect(&control, &SegmentedControl::action, [this] { ++actions; });
    }

    void showControl(Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        window.setLayoutDirection(direction);
        control.resize(control.sizeHint());
        window.resize(control.size());
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }

    void press(int tag, int key) const
    {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QApplication::sendEvent(control.segment(tag), &event);
        }
    }

    void click(int tag) const
    {
        QWidget* segment = control.segment(tag);
        const QPointF corner(1, segment->height() - 2); // a radio button alone would not take it there
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, corner, segment->mapToGlobal(corner), Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
            QApplication::sendEvent(segment, &event);
        }
    }
};

TEST_F(SegmentedControlTest, NoneIsChosenAtFirst)
{
    EXPECT_EQ(control.segmentCount(), 3);
    EXPECT_EQ(control.selectedTag(), -1);
    EXPECT_EQ(control.segment(3), nullptr);
}

TEST_F(SegmentedControlTest, ChoosingByProgramDoesNotAct)
{
    control.selectSegmentWithTag(2);
    EXPECT_EQ(control.selectedTag(), 2);
    control.selectSegmentWithTag(0);
    EXPECT_EQ(control.selectedTag(), 0);
    control.selectSegmentWithTag(7);
    EXPECT_EQ(control.selectedTag(), 0);
    EXPECT_EQ(actions, 0);
}

TEST_F(SegmentedControlTest, AClickActs)
{
    showControl();
    click(1);
    EXPECT_EQ(control.selectedTag(), 1);
    EXPECT_EQ(actions, 1);
    click(1);
    EXPECT_EQ(actions, 2) << "also on the chosen one";
}

TEST_F(SegmentedControlTest, ArrowKeysChooseAndKeepTheFocus)
{
    showControl();
    control.selectSegmentWithTag(0);
    control.segment(0)->setFocus(Qt::TabFocusReason);
    press(0, Qt::Key_Right);
    EXPECT_EQ(control.selectedTag(), 1);
    EXPECT_EQ(QApplication::focusWidget(), control.segment(1));
    press(1, Qt::Key_Right);
    EXPECT_EQ(control.selectedTag(), 2);
    press(2, Qt::Key_Left);
    EXPECT_EQ(control.selectedTag(), 1);
    EXPECT_EQ(actions, 3);
}

TEST_F(SegmentedControlTest, RunsFromRightToLeftWhereTextDoes)
{
    showControl(Qt::RightToLeft);
    EXPECT_GT(control.segment(0)->x(), control.segment(1)->x());
    control.selectSegmentWithTag(0);
    control.segment(0)->setFocus(Qt::TabFocusReason);
    press(0, Qt::Key_Left);
    EXPECT_EQ(control.selectedTag(), 1);
}

TEST_F(SegmentedControlTest, SegmentsTouchAndFitTheirTitles)
{
    showControl();
    for (int tag = 0; tag < 3; ++tag) {
        const QWidget& segment = *control.segment(tag);
        const int title = segment.fontMetrics()
                              .size(Qt::TextShowMnemonic, qobject_cast<const QRadioButton*>(&segment)->text())
                              .width();
        EXPECT_EQ(segment.width(), segmentWidth(title, segment.fontMetrics().height()));
        EXPECT_GE(segment.width(), title + 2 * segment.fontMetrics().height());
        if (tag > 0) {
            EXPECT_EQ(segment.x(), control.segment(tag - 1)->geometry().right() + 1);
        }
    }
}

TEST(SegmentWidth, IsTheTitlesAndALineOnEachSide)
{
    EXPECT_EQ(segmentWidth(100, 16), 132);
    EXPECT_EQ(segmentWidth(33, 16), 65);
    EXPECT_EQ(segmentWidth(32, 16), 64);
    EXPECT_EQ(segmentWidth(5, 16), 64) << "never narrower than four lines";
    EXPECT_EQ(segmentWidth(0, 30), 120);
}

TEST_F(SegmentedControlTest, GrowsWithTheFont)
{
    const QSize before = control.sizeHint();
    QFont font = control.font();
    font.setPointSizeF(font.pointSizeF() * 2);
    control.setFont(font);
    QApplication::processEvents();
    EXPECT_GT(control.sizeHint().width(), before.width() * 3 / 2);
    EXPECT_GT(control.sizeHint().height(), before.height() * 3 / 2);
}

TEST_F(SegmentedControlTest, IsAGroupOfRadioButtonsToAssistivePrograms)
{
    control.selectSegmentWithTag(1);
    for (int tag = 0; tag < 3; ++tag) {
        QAccessibleInterface* segment = QAccessible::queryAccessibleInterface(control.segment(tag));
        ASSERT_NE(segment, nullptr);
        EXPECT_EQ(segment->role(), QAccessible::RadioButton);
        EXPECT_EQ(segment->state().checked, tag == 1);
        EXPECT_TRUE(segment->state().focusable);
    }
    const auto* menuBar = QAccessible::queryAccessibleInterface(control.segment(1));
    EXPECT_EQ(menuBar->text(QAccessible::Name), QStringLiteral("Menu Bar"));
}

QImage pictureOf(SegmentedControl& control, bool focused)
{
    control.window()->setAttribute(Qt::WA_KeyboardFocusChange, focused);
    return control.grab().toImage();
}

TEST_F(SegmentedControlTest, ShowsTheFocusWhileTheKeyboardIsUsed)
{
    showControl();
    control.selectSegmentWithTag(0);
    control.segment(0)->setFocus(Qt::TabFocusReason);
    EXPECT_NE(pictureOf(control, true), pictureOf(control, false));
}

TEST_F(SegmentedControlTest, TheChosenOneHasThePalettesHighlight)
{
    QPalette palette(QColor(0x31, 0x36, 0x3b));
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x74, 0xd0));
    window.setPalette(palette);
    showControl();
    control.selectSegmentWithTag(1);
    const QImage picture = control.grab().toImage();
    const auto colourIn = [&](int tag) {
        const QPoint inside = control.segment(tag)->geometry().topLeft() + QPoint(8, 5);
        return picture.pixelColor(inside * picture.devicePixelRatio());
    };
    EXPECT_EQ(colourIn(1), QColor(0x30, 0x74, 0xd0));
    EXPECT_EQ(colourIn(2), palette.color(QPalette::Button));
}

} // namespace
