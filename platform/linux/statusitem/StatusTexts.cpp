#include "platform/linux/statusitem/StatusTexts.h"

#include "common/SingleLine.h"

namespace quindle {

namespace {

constexpr int menuLabelLength = 100;

/// Whether a host that looks for markup may find some. It looks closer than this, but what is needlessly
/// written as markup still shows as it should.
bool mayLookLikeMarkup(const QString& text)
{
    return text.contains(u'<') || text.contains(QLatin1String("&lt;"));
}

/// A blank that markup does not collapse with its neighbours.
QString asMarkup(QChar c)
{
    if (c == u'\n')
        return QStringLiteral("<br>");
    return c.isSpace() ? QString(QChar(QChar::Nbsp)) : QString(c).toHtmlEscaped();
}

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
    if (!mayLookLikeMarkup(text))
        return text;
    QString markup = QStringLiteral("<p>");
    for (const QChar c : text)
        markup += asMarkup(c);
    return markup + QStringLiteral("</p>");
}

QString menuLabel(const QString& text, bool keepsTab)
{
    QString label = text;
    const qsizetype tab = label.indexOf(QLatin1Char('\t'));
    if (tab >= 0 && !keepsTab)
        label.replace(tab, 1, QStringLiteral(": "));
    label = singleLine(label);
    if (tab >= 0 && keepsTab)
        label[tab] = QLatin1Char('\t');
    return elided(label, menuLabelLength).replace(QLatin1Char('_'), QLatin1String("__"));
}

} // namespace quindle
