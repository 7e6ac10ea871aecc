#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

// What a user does, without a display's help.
namespace quindle::test {

inline void pressKey(QWidget& widget, int key, const QString& text = {})
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &release);
}

inline void type(QWidget& widget, const QString& text)
{
    for (const QChar letter : text)
        pressKey(widget, 0, letter);
}

inline void clickAt(QWidget& widget, const QPoint& place)
{
    if ((widget.focusPolicy() & Qt::ClickFocus) != 0) // a click of the display's gives it before it arrives
        widget.setFocus(Qt::MouseFocusReason);
    for (const auto kind : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const auto held = kind == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(kind, place, widget.mapToGlobal(place), Qt::LeftButton, held, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
}

/// Shows a window of its own that has the keyboard.
inline void showActive(QWidget& window)
{
    window.resize(window.sizeHint());
    window.show();
    window.activateWindow();
    QApplication::processEvents();
}

} // namespace quindle::test
