#include "widgets/IsolatedText.h"

#include <QGuiApplication>

namespace quindle {

QString isolatedText(const QString& text)
{
    constexpr QChar firstStrongIsolate(u'\u2068');
    constexpr QChar popIsolate(u'\u2069');
    return QGuiApplication::isRightToLeft() ? firstStrongIsolate + text + popIsolate : text;
}

QString IsolatedCells::displayText(const QVariant& value, const QLocale& locale) const
{
    return isolatedText(QStyledItemDelegate::displayText(value, locale));
}

} // namespace quindle
