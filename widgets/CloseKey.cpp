#include "widgets/CloseKey.h"

#include <QKeyEvent>

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

} // namespace

bool isCloseKey(const QKeyEvent& event)
{
    return event.modifiers().testFlag(Qt::ControlModifier) &&
           charactersIgnoringModifiers(event) == QStringLiteral("w");
}

} // namespace quindle
