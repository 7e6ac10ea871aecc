#include "widgets/CloseKey.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QWidget>

namespace quindle {

namespace {

/// With Control held the text is a control character or nothing, so the letter comes from the key.
QString charactersIgnoringModifiers(const QKeyEvent& event)
{
    QString text = event.text();
    if (!text.isEmpty() && text.at(0).isPrint())
        return text;
    if (event.key() < Qt::Key_A || event.key() > Qt::Key_Z)
        return {};
    const QString letter(QChar(event.key()));
    return event.modifiers().testFlag(Qt::ShiftModifier) ? letter : letter.toLower();
}

class DialogCloser : public QObject
{
public:
    using QObject::QObject;

    // A press comes to the dialog when no control in it has taken it.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* dialog = event->type() == QEvent::KeyPress ? qobject_cast<QDialog*>(watched) : nullptr;
        if (!dialog || !isCloseKey(*static_cast<QKeyEvent*>(event)))
            return false;
        dialog->close();
        return true;
    }
};

} // namespace

bool isCloseKey(const QKeyEvent& event)
{
    return event.modifiers().testFlag(Qt::ControlModifier) &&
           charactersIgnoringModifiers(event) == QStringLiteral("w");
}

bool closesWindow(const QKeyEvent& event)
{
    return isCloseKey(event) || event.matches(QKeySequence::Cancel);
}

void finishEditing(const QWidget& window)
{
    if (QWidget* focused = window.focusWidget()) {
        focused->clearFocus();
        focused->setFocus(Qt::OtherFocusReason);
    }
}

void closeDialogsByKey()
{
    QCoreApplication::instance()->installEventFilter(new DialogCloser(QCoreApplication::instance()));
}

} // namespace quindle
