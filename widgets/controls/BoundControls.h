#pragma once

#include <QCheckBox>
#include <QLineEdit>

namespace quindle {

/// A field for a text that others may change as well. The bound text is shown at once, except over what the
/// user is in the middle of typing.
class BoundLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString boundText READ boundText WRITE setBoundText USER true)

public:
    explicit BoundLineEdit(QWidget* parent = nullptr);

    /// The text as it is stored; what the field shows may not be stored yet.
    const QString& boundText() const { return m_boundText; }
    void setBoundText(const QString& text);

    /// Treats the shown text as what the user wants.
    void commit();

    /// Whether the shown text differs from the stored one.
    bool isPending() const { return text() != m_boundText; }

Q_SIGNALS:
    /// The user wants the shown text: on the Return key, on leaving the field with a text that differs from
    /// the bound one, and never twice for the same typing.
    void committed();

    /// `isPending` has changed.
    void pendingChanged();

protected:
    /// Escape undoes what is not stored; with nothing to undo it is left to the window.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void commitChange();
    void followPending();

    QString m_boundText;
    bool m_wasPending = false;
};

/// A check box that shows a setting. Distinguishes changes by the user, also through an assistive technology,
/// which does not click, from filling it in.
class BoundCheckBox : public QCheckBox
{
    Q_OBJECT
    Q_PROPERTY(bool shown READ isChecked WRITE setShown USER true)

public:
    explicit BoundCheckBox(QWidget* parent = nullptr);

    /// Fills it in.
    void setShown(bool checked);

Q_SIGNALS:
    /// The user has switched it.
    void switched(bool on);

private:
    bool m_isFilling = false;
};

} // namespace quindle
