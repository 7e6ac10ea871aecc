#include "widgets/IsolatedCells.h"

#include "common/Translation.h"

namespace quindle {

QString IsolatedCells::displayText(const QVariant& value, const QLocale& locale) const
{
    return isolatedText(QStyledItemDelegate::displayText(value, locale));
}

} // namespace quindle
