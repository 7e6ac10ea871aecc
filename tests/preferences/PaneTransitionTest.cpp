#include "preferences/window/PaneTransition.h"

#include <QGraphicsOpacityEffect>
#include <QWidget>
#include <gtest/gtest.h>

using namespace quindle;

namespace {

class PaneTransitionTest : public testing::Test
{
protected:
    QWidget window;
    QWidget* view = new QWidget(&window);
    PaneTransition transition{window};

    PaneTransitionTest() { window.setFixedSize(100, 100); }

    double opacity() const
    {
        const auto* effect = qobject_cast<QGraphicsOpacityEffect*>(view->graphicsEffect());
        return effect ? effect->opacity() : 1.0;
    }

    void goTo(int milliseconds)
    {
        const_cast<QVariantAnimation&>(transition.animation()).setCurrentTime(milliseconds);
    }
};

TEST_F(PaneTransitionTest, ChangesSizeAndOpacityTogether)
{
    transition.begin(*view, {300, 200}, PaneTransition::Motion::FadeAndSize);
    EXPECT_TRUE(transition.isRunning());
    EXPECT_EQ(window.size(), QSize(100, 100));
    EXPECT_EQ(opacity(), 0.0);

    goTo(125);
    EXPECT_NEAR(opacity(), 0.5, 0.01);
    EXPECT_NEAR(window.width(), 200, 2);
    EXPECT_NEAR(window.height(), 150, 2);

    goTo(250);
    EXPECT_EQ(window.size(), QSize(300, 200));
    EXPECT_EQ(view->graphicsEffect(), nullptr);
    EXPECT_FALSE(transition.isRunning());
}

TEST_F(PaneTransitionTest, BeginsAndEndsSlowly)
{
    transition.begin(*view, {300, 200}, PaneTransition::Motion::FadeAndSize);
    EXPECT_EQ(transition.animation().duration(), 250);
    goTo(25);
    EXPECT_LT(opacity(), 0.05);
    goTo(225);
    EXPECT_GT(opacity(), 0.95);
}

TEST_F(PaneTransitionTest, FadesAtTheFinalSize)
{
    transition.begin(*view, {300, 200}, PaneTransition::Motion::Fade);
    EXPECT_EQ(window.size(), QSize(300, 200));
    EXPECT_EQ(opacity(), 0.0);
}

TEST_F(PaneTransitionTest, WithoutMotionIsOverAtOnce)
{
    transition.begin(*view, {300, 200}, PaneTransition::Motion::None);
    EXPECT_FALSE(transition.isRunning());
    EXPECT_EQ(window.size(), QSize(300, 200));
    EXPECT_EQ(view->graphicsEffect(), nullptr);
}

TEST_F(PaneTransitionTest, IsEndedByTheNextOne)
{
    transition.begin(*view, {300, 200}, PaneTransition::Motion::FadeAndSize);
    auto* next = new QWidget(&window);
    transition.begin(*next, {150, 150}, PaneTransition::Motion::FadeAndSize);
    EXPECT_EQ(view->graphicsEffect(), nullptr);
    EXPECT_EQ(window.size(), QSize(300, 200)) << "the next one starts where this one ends";
    goTo(250);
    EXPECT_EQ(window.size(), QSize(150, 150));
}

TEST_F(PaneTransitionTest, GoesToAnotherSizeWhenItIsToldOnTheWay)
{
    transition.begin(*view, {300, 200}, PaneTransition::Motion::FadeAndSize);
    transition.setSize({400, 300});
    EXPECT_EQ(window.size(), QSize(100, 100));
    goTo(250);
    EXPECT_EQ(window.size(), QSize(400, 300));
    transition.setSize({120, 130});
    EXPECT_EQ(window.size(), QSize(120, 130)) << "at once when none is under way";
}

TEST_F(PaneTransitionTest, SurvivesTheViewsEnd)
{
    transition.begin(*view, {300, 200}, PaneTransition::Motion::FadeAndSize);
    delete view;
    goTo(125);
    goTo(250);
    EXPECT_EQ(window.size(), QSize(300, 200));
}

} // namespace
