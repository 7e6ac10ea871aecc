#pragma once

#include <QStyledItemDelegate>

namespace quindle {

/// `text` with a direction of its own among texts from right to left, so that its sign, number and unit, or a
/// date in another language, keep their order. As it is in other languages.
QString isolatedText(const QString& text);

/// Shows each text of a table so; the model has it as it is.
class IsolatedCells : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override;
};

} // namespace quindle
