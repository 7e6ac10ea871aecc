#include "preferences/panes/HelperPreferencesWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

#include "tests/preferences/Input.h"

namespace quindle {

namespace {

struct KeyCase
{
    const char* name;
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    bool closes;
};

class MovedWindow : public HelperPreferencesWindow
{
public:
    int moves = 0;

protected:
    void startMove() override { ++moves; }
};

class WindowKeys : public testing::TestWithParam<KeyCase>
{
};

} // namespace

TEST_P(WindowKeys, closeTheWindowAlsoFromAField)
{
    HelperPreferencesWindow window;
    QLineEdit field(&window);
    window.show();
    QKeyEvent press(QEvent::KeyPress, GetParam().key, GetParam().modifiers,
                    QString::fromLatin1(GetParam().text));
    QApplication::sendEvent(&field, &press);
    EXPECT_EQ(!window.isVisible(), GetParam().closes);
}

INSTANTIATE_TEST_SUITE_P(Keys, WindowKeys,
                         testing::Values(KeyCase{"escape", Qt::Key_Escape, Qt::NoModifier, "", true},
                                         KeyCase{"controlW", Qt::Key_W, Qt::ControlModifier, "\x17", true},
                                         KeyCase{"controlShiftW", Qt::Key_W,
                                                 Qt::ControlModifier | Qt::ShiftModifier, "", false},
                                         KeyCase{"w", Qt::Key_W, Qt::NoModifier, "w", false},
                                         KeyCase{"controlF4", Qt::Key_F4, Qt::ControlModifier, "", false},
                                         KeyCase{"enter", Qt::Key_Return, Qt::NoModifier, "\r", false}),
                         [](const testing::TestParamInfo<KeyCase>& c) { return std::string(c.param.name); });

TEST(HelperPreferencesWindow, endsEditingWhenItCloses)
{
    HelperPreferencesWindow window;
    QLineEdit field(&window);
    int finished = 0;
    QObject::connect(&field, &QLineEdit::editingFinished, &window, [&finished] { ++finished; });
    window.show();
    window.activateWindow();
    field.setFocus();
    QApplication::processEvents();
    ASSERT_TRUE(field.hasFocus());
    field.insert(QStringLiteral("typed"));
    window.close();
    EXPECT_EQ(finished, 1);
}

TEST(HelperPreferencesWindow, isMovedByItsBackgroundWhenThatIsWanted)
{
    MovedWindow window;
    QPushButton button(&window);
    QLabel label(&window);
    window.show();
    for (QWidget* place : std::initializer_list<QWidget*>{&window, &label, &button})
        test::clickAt(*place, QPoint(1, 1));
    EXPECT_EQ(window.moves, 0);
    window.setMovableByWindowBackground(true);
    test::clickAt(window, QPoint(1, 1));
    EXPECT_EQ(window.moves, 1);
    test::clickAt(label, QPoint(1, 1));
    EXPECT_EQ(window.moves, 2);
    test::clickAt(button, QPoint(1, 1));
    EXPECT_EQ(window.moves, 2);
}

} // namespace quindle
