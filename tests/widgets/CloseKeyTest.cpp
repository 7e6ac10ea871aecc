#include "widgets/CloseKey.h"

#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "tests/preferences/Input.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct Case
{
    const char* name;
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    bool closes;
};

TEST(CloseKey, IsControlAndALowerCaseW)
{
    const Qt::KeyboardModifiers control = Qt::ControlModifier;
    const Case cases[]{
        {"Ctrl+W as the desktop sends it", Qt::Key_W, control, "\x17", true},
        {"Ctrl+W without text", Qt::Key_W, control, "", true},
        {"Ctrl+W with text", Qt::Key_W, control, "w", true},
        {"Ctrl+Alt+W", Qt::Key_W, control | Qt::AltModifier, "", true},
        {"a key of another script that types w", Qt::Key_unknown, control, "w", true},
        {"w", Qt::Key_W, Qt::NoModifier, "w", false},
        {"Alt+W", Qt::Key_W, Qt::AltModifier, "w", false},
        {"Meta+W", Qt::Key_W, Qt::MetaModifier, "w", false},
        {"Ctrl+Shift+W", Qt::Key_W, control | Qt::ShiftModifier, "W", false},
        {"Ctrl+Shift+W as the desktop sends it", Qt::Key_W, control | Qt::ShiftModifier, "\x17", false},
        {"Ctrl+W with caps lock", Qt::Key_W, control, "W", false},
        {"Ctrl+F4", Qt::Key_F4, control, "", false},
        {"Ctrl+Q", Qt::Key_Q, control, "\x11", false},
        {"Escape", Qt::Key_Escape, Qt::NoModifier, "\x1b", false},
        {"Ctrl+Escape", Qt::Key_Escape, control, "", false},
    };
    for (const Case& row : cases) {
        const QKeyEvent event(QEvent::KeyPress, row.key, row.modifiers, QString::fromLatin1(row.text));
        EXPECT_EQ(isCloseKey(event), row.closes) << row.name;
    }
}

TEST(CloseKey, EscapeClosesWindowsToo)
{
    EXPECT_TRUE(closesWindow(QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier)));
    EXPECT_TRUE(closesWindow(QKeyEvent(QEvent::KeyPress, Qt::Key_W, Qt::ControlModifier)));
    EXPECT_FALSE(closesWindow(QKeyEvent(QEvent::KeyPress, Qt::Key_W, Qt::NoModifier)));
}

TEST(CloseKey, ClosesDialogsFromTheirFields)
{
    closeDialogsByKey();
    QDialog dialog;
    QLineEdit field(&dialog);
    dialog.show();
    test::pressKey(field, Qt::Key_W, QStringLiteral("w"));
    EXPECT_TRUE(dialog.isVisible());
    QKeyEvent close(QEvent::KeyPress, Qt::Key_W, Qt::ControlModifier, QStringLiteral("\x17"));
    QApplication::sendEvent(&field, &close);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(field.text(), QStringLiteral("w"));
}

TEST(CloseKey, FinishingTakesWhatIsTypedAndKeepsTheKeyboard)
{
    QWidget window;
    QVBoxLayout column(&window);
    QLineEdit field;
    column.addWidget(&field);
    int finished = 0;
    QObject::connect(&field, &QLineEdit::editingFinished, &field, [&] { ++finished; });
    test::showActive(window);
    field.setFocus();
    test::type(field, QStringLiteral("x"));
    finishEditing(window);
    EXPECT_EQ(finished, 1);
    EXPECT_EQ(window.focusWidget(), &field);
}

} // namespace
