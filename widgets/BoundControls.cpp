#include "widgets/BoundControls.h"

#include <QScopedValueRollback>

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
    // A change from elsewhere must not take a text away that somebody is writing.
    const bool isBeingTyped = hasFocus() && isModified();
    if (text == this->text() || isBeingTyped)
        return;
    setText(text);
}

void BoundLineEdit::commit()
{
    setModified(false);
    // Before the signal: what is stored comes back as the bound text, and is no other change then.
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

BoundCheckBox::BoundCheckBox(QWidget* parent)
    : QCheckBox(parent)
{
    connect(this, &QCheckBox::toggled, this, [this](bool on) {
        if (!m_isFilling)
            Q_EMIT switched(on);
    });
}

void BoundCheckBox::setShown(bool checked)
{
    // What is filled in is stored already.
    const QScopedValueRollback filling(m_isFilling, true);
    setChecked(checked);
}

} // namespace quindle

#include "moc_BoundControls.cpp"
