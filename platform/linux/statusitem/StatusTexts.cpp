#include "platform/linux/statusitem/StatusTexts.h"

#include <QTextDocument>

#include "common/SingleLine.h"

namespace quindle {

namespace {

constexpr int menuLabelLength = 100;

} // namespace

QString busText(const QString& text)
{
    QString carried = text;
    return carried.replace(QChar::Null, QChar(QChar::ReplacementCharacter));
}

QString escapedMarkup(const QString& text)
{
    return text.toHtmlEscaped();
}

QString literalPanelToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

QString menuLabel(const QString& text)
{
    QString label = text;
    const qsizetype tab = label.indexOf(QLatin1Char('\t'));
    if (tab >= 0)
        label.replace(tab, 1, QStringLiteral(": "));
    return elided(singleLine(label), menuLabelLength).replace(QLatin1Char('_'), QLatin1String("__"));
}

} // namespace quindle
