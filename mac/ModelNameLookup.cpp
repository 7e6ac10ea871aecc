#include "mac/ModelNameLookup.h"

#include <algorithm>

#include <QVariantMap>

#include "mac/XMLData.h"
#include "mac/XmlParser.h"
#include "platform/Bundle.h"
#include "platform/UrlSession.h"

namespace quindle {

namespace {

bool isLineEnd(QChar character)
{
    constexpr QStringView lineEnds = u"\n\v\f\r\u0085\u2028\u2029";
    return lineEnds.contains(character);
}

std::optional<QString> parenthesisedTextOfLine(QStringView line)
{
    const qsizetype first = line.indexOf(u'(');
    // From the first parenthesis to the last: of "A (x) B (y)" that is "(x) B (y)".
    const qsizetype last = line.lastIndexOf(u')');
    // "()" holds no text.
    if (first < 0 || last - first < 2)
        return std::nullopt;
    return line.mid(first, last - first + 1).toString();
}

} // namespace

QString productInformationHost(const Bundle& bundle)
{
    const QVariant host =
        bundle.infoDictionary().value_or(QVariantMap()).value(QStringLiteral("QDProductInformationHost"));
    // Empty in the program as built: the address then has no host, and nothing is asked.
    return host.typeId() == QMetaType::QString ? host.toString() : QString();
}

QString productInformationAddress(const QString& host, const QString& code)
{
    // The service's protocol: plain HTTP, always in English.
    return QStringLiteral("http://") + host + QStringLiteral("/sp/product?cc=") + code +
           QStringLiteral("&lang=en_US");
}

std::optional<QString> parenthesisedText(const QString& name)
{
    for (auto start = name.cbegin();; ++start) {
        const auto end = std::find_if(start, name.cend(), isLineEnd);
        if (auto text = parenthesisedTextOfLine({start, end}))
            return text;
        if (end == name.cend())
            return std::nullopt;
        start = end;
    }
}

std::optional<QString> modelTextFromReply(const QString& code, const QByteArray& reply)
{
    XMLData data(code);
    // Nothing from before a fault is used: half a name would stay in the cache for good.
    if (!parseXml(reply, data))
        return std::nullopt;
    // Despite its name, the element holds the marketing name.
    return parenthesisedText(data.configCode().value_or(QString()));
}

std::optional<QString> onlineModelText(const QString& code, const Bundle& bundle, UrlSession& urlSession)
{
    const auto reply = urlSession.contents(productInformationAddress(productInformationHost(bundle), code));
    if (!reply)
        return std::nullopt;
    return modelTextFromReply(code, *reply);
}

} // namespace quindle
