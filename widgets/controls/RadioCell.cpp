#include "widgets/controls/RadioCell.h"

#include <QAccessibleWidget>

namespace quindle {

namespace {

/// What assistive programs see of a cell.
class AccessibleRadioCell : public QAccessibleWidget
{
public:
    explicit AccessibleRadioCell(RadioCell& cell)
        : QAccessibleWidget(&cell, QAccessible::RadioButton)
        , m_cell(cell)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name && m_cell.accessibleName().isEmpty())
            return withoutMnemonic(m_cell.text());
        if (kind == QAccessible::Accelerator)
            return m_cell.shortcut().toString(QKeySequence::NativeText);
        return QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = m_cell.isChecked();
        state.pressed = m_cell.isDown();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (m_cell.isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& action) override
    {
        if (action == pressAction())
            m_cell.click(); // does nothing where it is disabled
        else
            QAccessibleWidget::doAction(action);
    }

private:
    static QString withoutMnemonic(const QString& label)
    {
        QString name;
        for (qsizetype i = 0; i < label.size(); ++i) {
            if (label[i] == u'&' && i + 1 < label.size())
                ++i; // keeps what it marks, even another "&"
            name.append(label[i]);
        }
        return name;
    }

    RadioCell& m_cell;
};

QAccessibleInterface* accessibleRadioCell(const QString& /*className*/, QObject* object)
{
    auto* cell = qobject_cast<RadioCell*>(object);
    return cell ? new AccessibleRadioCell(*cell) : nullptr;
}

} // namespace

RadioCell::RadioCell(const QString& label, QWidget* parent)
    : QRadioButton(label, parent)
{
    QAccessible::installFactory(accessibleRadioCell); // once: further calls with the same function do nothing
}

} // namespace quindle

#include "moc_RadioCell.cpp"
