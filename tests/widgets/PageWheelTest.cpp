#include "widgets/controls/PageWheel.h"

#include <QApplication>
#include <QComboBox>
#include <QSpinBox>
#include <QWheelEvent>
#include <gtest/gtest.h>

using namespace quindle;

namespace {

/// Whether the control takes one notch down; what it leaves goes to its page.
bool takesWheel(QWidget& control)
{
    const QPointF centre(control.rect().center());
    QWheelEvent event(centre, control.mapToGlobal(centre), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&control, &event);
    return event.isAccepted();
}

struct PageWheelTest : testing::Test
{
    PageWheelTest()
    {
        box.addItems({QStringLiteral("for ever"), QStringLiteral("30 days")});
        percent.setValue(20);
    }

    QComboBox box;
    QSpinBox percent;
};

TEST_F(PageWheelTest, ControlsOfTheToolkitTakeIt)
{
    EXPECT_TRUE(takesWheel(box));
    EXPECT_TRUE(takesWheel(percent));
    EXPECT_EQ(box.currentIndex(), 1);
    EXPECT_EQ(percent.value(), 19);
}

TEST_F(PageWheelTest, IsLeftToThePage)
{
    leaveWheelToPage(box);
    leaveWheelToPage(percent);
    EXPECT_FALSE(takesWheel(box));
    EXPECT_FALSE(takesWheel(percent));
    EXPECT_EQ(box.currentIndex(), 0);
    EXPECT_EQ(percent.value(), 20);
    EXPECT_EQ(box.focusPolicy(), Qt::StrongFocus);
}

} // namespace
