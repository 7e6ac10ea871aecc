#include "widgets/controls/BoundControls.h"

#include <utility>

#include <QKeyEvent>
#include <QScopedValueRollback>

namespace quindle {

BoundLineEdit::BoundLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    connect(this, &QLineEdit::returnPressed, this, &BoundLineEdit::commit);
    connect(this, &QLineEdit::editingFinished, this, &BoundLineEdit::commitChange);
    connect(this, &QLineEdit::textChanged, this, &BoundLineEdit::followPending);
}

void BoundLineEdit::setBoundText(const QString& text)
{
    m_boundText = text;
    // A change from elsewhere must not replace a text that is being typed.
    const bool isBeingTyped = hasFocus() && isModified();
    if (text != this->text() && !isBeingTyped)
        setText(text);
    followPending();
}

void BoundLineEdit::commit()
{
    setModified(false);
    // Before the signal: what is stored comes back as the bound text, and must not count as a change.
    m_boundText = text();
    followPending();
    Q_EMIT committed();
}

// The Return key has already emitted its own signal, and left nothing modified.
void BoundLineEdit::commitChange()
{
    if (isModified() && text() != m_boundText)
        commit();
    setModified(false);
}

void BoundLineEdit::followPending()
{
    const bool wasPending = std::exchange(m_wasPending, isPending());
    if (wasPending != m_wasPending)
        Q_EMIT pendingChanged();
}

void BoundLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel) && isPending())
        setText(m_boundText);
    else
        QLineEdit::keyPressEvent(event);
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
