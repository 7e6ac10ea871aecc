#include "widgets/BoundCheckBox.h"

#include <QScopedValueRollback>

namespace quindle {

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
    const QScopedValueRollback filling(m_isFilling, true);
    setChecked(checked);
}

} // namespace quindle
