#include "widgets/BoundLineEdit.h"

namespace quindle {

BoundLineEdit::BoundLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    connect(this, &QLineEdit::returnPressed, this, &BoundLineEdit::commit);
    connect(this, &QLineEdit::editingFinished, this, &BoundLineEdit::commitChange);
}

void BoundLineEdit::setBoundText(const QString& text)
{
    m_boundText = text;
    const bool isBeingTyped = hasFocus() && isModified();
    if (text == this->text() || isBeingTyped)
        return;
    setText(text);
}

void BoundLineEdit::commit()
{
    setModified(false);
    m_boundText = text();
    Q_EMIT committed();
}

// The Return key has emitted its own signal before, and left nothing modified.
void BoundLineEdit::commitChange()
{
    if (isModified() && text() != m_boundText)
        commit();
    setModified(false);
}

} // namespace quindle
