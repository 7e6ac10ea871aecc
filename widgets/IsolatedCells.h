#pragma once

#include <QStyledItemDelegate>

namespace quindle {

/// Isolates the texts that a table shows (see isolatedText); the model keeps them unchanged.
class IsolatedCells : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override;
};

} // namespace quindle
