#include "menubar/ValueTexts.h"

#include <array>
#include <cmath>

#include <QLocale>
#include <QObject>

#include "common/NumberConversion.h"
#include "common/NumberTexts.h"

namespace quindle {

namespace {

QString asItStands(const QVariant& value)
{
    return value.toString();
}

QString grouped(const QVariant& value)
{
    const auto number = convertToInteger(value);
    return number ? groupedText(*number, groupSeparator()) : QString();
}

QString capacity(const QVariant& value)
{
    const auto number = convertToInteger(value);
    return number && *number > 0 ? grouped(value) : QString();
}

QString figure(const QVariant& value)
{
    const auto number = convertToDouble(value);
    return number ? fixedText(*number, 1) : QString();
}

QString percent(const QVariant& value)
{
    const QString text = figure(value);
    return text.isEmpty() ? text : text + QStringLiteral(" %");
}

QString watts(const QVariant& value)
{
    const QString text = figure(value);
    return text.isEmpty() ? text : text + QStringLiteral(" W");
}

QString cycles(const QVariant& value)
{
    const auto number = convertToInteger(value);
    if (!number)
        return {};
    return grouped(value) + (*number == 1 ? QStringLiteral(" cycle") : QStringLiteral(" cycles"));
}

struct Format
{
    QLatin1String name;
    QString (*text)(const QVariant&) = nullptr;
};

constexpr std::array formats{
    Format{QLatin1String(""), asItStands},       //
    Format{QLatin1String("grouped"), grouped},   //
    Format{QLatin1String("capacity"), capacity}, //
    Format{QLatin1String("percent"), percent},   //
    Format{QLatin1String("figure"), figure},     //
    Format{QLatin1String("watts"), watts},       //
    Format{QLatin1String("cycles"), cycles},     //
};

const Format* findFormat(const QString& name)
{
    for (const Format& format : formats) {
        if (format.name == name)
            return &format;
    }
    return nullptr;
}

} // namespace

bool tellsSomething(const QVariant& value)
{
    if (!value.isValid())
        return false;
    if (value.metaType().flags().testFlag(QMetaType::PointerToQObject))
        return value.value<QObject*>() != nullptr;
    switch (value.typeId()) {
    case QMetaType::QString:
        return !value.toString().trimmed().isEmpty();
    case QMetaType::Double:
        return std::isfinite(value.toDouble());
    case QMetaType::Bool:
        return value.toBool();
    default:
        return true;
    }
}

QString groupedText(qint64 number, const QString& separator)
{
    QString text = integerText(number);
    const qsizetype firstDigit = number < 0 ? 1 : 0;
    for (qsizetype position = text.size() - 3; position > firstDigit; position -= 3)
        text.insert(position, separator);
    return text;
}

QString groupSeparator()
{
    const QString separator = QLocale().groupSeparator();
    return separator == u'.' ? QString(QChar(u'\u202F')) : separator;
}

bool isValueFormat(const QString& name)
{
    return findFormat(name) != nullptr;
}

QString valueText(const QVariant& value, const QString& format)
{
    const Format* found = findFormat(format);
    return found && tellsSomething(value) ? found->text(value) : QString();
}

} // namespace quindle
