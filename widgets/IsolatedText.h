#pragma once

#include <QStyledItemDelegate>

namespace quindle {

/// `text` with a direction of its own among texts from right to left, so that its sign, number and unit, or a
/// date in another language, keep their order. Unchanged in languages that run from left to right.
QString isolatedText(const QString& text);

/// Isolates the texts that a table shows; the model keeps them unchanged.
class IsolatedCells : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override;
};

} // namespace quindle
