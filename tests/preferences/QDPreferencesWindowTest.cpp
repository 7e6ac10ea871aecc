#include "preferences/window/QDPreferencesWindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "tests/preferences/TestPane.h"
#include "tests/support/QtPrinters.h"
#include "widgets/ControlColours.h"
#include "widgets/controls/BoundControls.h"

using namespace quindle;

namespace {

class MovedWindow : public QDPreferencesWindow
{
public:
    int moves = 0;

protected:
    void startMove() override { ++moves; }
};

class QDPreferencesWindowTest : public testing::Test
{
protected:
    MovedWindow window;
    test::SizedView view{QSize(300, 200)};

    QDPreferencesWindowTest()
    {
        window.setContent(&view, false);
        window.setFixedSize(window.fitFor(view).size);
        window.show();
        QApplication::processEvents();
    }

    ~QDPreferencesWindowTest() override { view.setParent(nullptr); }

    static void type(QWidget& widget, int key, Qt::KeyboardModifiers modifiers)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&widget, &event);
    }

    static void press(QWidget& widget, Qt::MouseButton button)
    {
        QMouseEvent event(QEvent::MouseButtonPress, QPointF(5, 5), widget.mapToGlobal(QPointF(5, 5)), button,
                          button, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
};

TEST_F(QDPreferencesWindowTest, IsTitledClosableAndMiniaturizable)
{
    const Qt::WindowFlags flags = window.windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::WindowTitleHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_FALSE(window.testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(QDPreferencesWindowTest, ClosesOnControlW)
{
    type(window, Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(QDPreferencesWindowTest, ClosesOnControlWInATextField)
{
    auto* field = new QLineEdit(&view);
    field->show();
    type(*field, Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(QDPreferencesWindowTest, StaysOnOtherKeys)
{
    type(window, Qt::Key_W, Qt::NoModifier);
    type(window, Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
    type(window, Qt::Key_F4, Qt::ControlModifier);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(QDPreferencesWindowTest, ClosesOnEscapeThatNoControlHasTaken)
{
    auto* field = new BoundLineEdit(&view);
    field->show();
    field->setText(QStringLiteral("typed"));
    type(*field, Qt::Key_Escape, Qt::NoModifier);
    EXPECT_TRUE(window.isVisible()) << "it took the text back";
    type(*field, Qt::Key_Escape, Qt::NoModifier);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(QDPreferencesWindowTest, ClosingStoresWhatIsTyped)
{
    auto* field = new BoundLineEdit(&view);
    int commits = 0;
    QObject::connect(field, &BoundLineEdit::committed, field, [&] { ++commits; });
    field->show();
    window.activateWindow();
    field->setFocus();
    QApplication::processEvents();
    field->insert(QStringLiteral("typed"));
    window.close();
    EXPECT_EQ(commits, 1);
}

TEST_F(QDPreferencesWindowTest, UntickedBoxesAreSeenOnDarkDesktops)
{
    auto* box = new QCheckBox(&view);
    window.setContent(&view, false);
    const QPalette light = window.palette();
    QPalette dark = light;
    dark.setColor(QPalette::Window, QColor(32, 35, 38));
    dark.setColor(QPalette::Base, QColor(20, 22, 24));
    dark.setColor(QPalette::WindowText, Qt::white);
    window.setPalette(dark);
    // A style derives the box's outline from the window's colour.
    EXPECT_EQ(box->palette().color(QPalette::Window), outlineSource(dark));
    window.setPalette(light);
    EXPECT_EQ(box->palette().color(QPalette::Window), light.color(QPalette::Window));
}

TEST_F(QDPreferencesWindowTest, OtherKeysGoTheUsualWay)
{
    QKeyEvent event(QEvent::KeyPress, Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier,
                    QStringLiteral("W"));
    QApplication::sendEvent(&window, &event);
    EXPECT_FALSE(event.isAccepted());
}

TEST_F(QDPreferencesWindowTest, IsMovedByItsBackground)
{
    auto* label = new QLabel(QStringLiteral("Caption"), &view);
    auto* field = new QLineEdit(&view);
    label->show();
    field->show();

    press(view, Qt::LeftButton);
    EXPECT_EQ(window.moves, 0) << "not before it may";
    window.setMovableByWindowBackground(true);
    press(view, Qt::LeftButton);
    EXPECT_EQ(window.moves, 1);
    press(*label, Qt::LeftButton);
    EXPECT_EQ(window.moves, 2);
    press(*field, Qt::LeftButton);
    EXPECT_EQ(window.moves, 2) << "a control is no background";
    press(view, Qt::RightButton);
    EXPECT_EQ(window.moves, 2);
}

TEST_F(QDPreferencesWindowTest, PutsAViewBetweenForTheVisualEffect)
{
    EXPECT_EQ(view.parentWidget(), window.contentView());
    window.setContent(nullptr, false);
    view.setParent(nullptr);
    window.setContent(&view, true);
    EXPECT_EQ(view.parentWidget()->objectName(), QStringLiteral("visualEffectView"));
    EXPECT_EQ(view.parentWidget()->parentWidget(), window.contentView());
    QApplication::processEvents();
    EXPECT_EQ(view.parentWidget()->rect(), window.contentView()->rect()) << "it fills the content";
}

TEST_F(QDPreferencesWindowTest, AViewThatIsHigherThanTheScreenScrolls)
{
    const QRect screen = window.screen()->availableGeometry();
    EXPECT_FALSE(window.fitFor(view).scrolls);
    EXPECT_EQ(window.fitFor(view).size, QSize(300, 200));
    view.want({300, screen.height() + 1});
    const auto fit = window.fitFor(view);
    EXPECT_TRUE(fit.scrolls);
    EXPECT_EQ(fit.size.height(), screen.height() - (window.frameGeometry().height() - window.height()));
    EXPECT_GT(fit.size.width(), 300) << "room for the scroll bar";
}

TEST_F(QDPreferencesWindowTest, AWrappedTextGetsTheHeightOfTheWindowsWidth)
{
    QWidget wrapped;
    auto* layout = new QVBoxLayout(&wrapped);
    auto* label = new QLabel(QStringLiteral("many words ").repeated(60));
    label->setWordWrap(true);
    layout->addWidget(label);
    wrapped.setFixedWidth(200);
    const QSize narrow = window.fitFor(wrapped).size;
    wrapped.setFixedWidth(400);
    const QSize wide = window.fitFor(wrapped).size;
    EXPECT_EQ(narrow, QSize(200, wrapped.heightForWidth(200)));
    EXPECT_EQ(wide, QSize(400, wrapped.heightForWidth(400)));
    EXPECT_LT(wide.height(), narrow.height());
}

TEST_F(QDPreferencesWindowTest, AViewWithoutALayoutKeepsItsSize)
{
    QWidget plain;
    plain.resize(321, 123);
    EXPECT_EQ(window.fitFor(plain).size, QSize(321, 123));
}

} // namespace
