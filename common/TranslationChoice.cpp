#include "common/TranslationChoice.h"

#include <algorithm>

namespace quindle {

namespace {

bool isEnglish(const QString& name)
{
    return name == QStringLiteral("C") || name == QStringLiteral("POSIX") ||
           name.section(u'_', 0, 0) == QStringLiteral("en");
}

/// Simplified Chinese by the script alone, as in Singapore.
QString usualName(const QString& name)
{
    return name.startsWith(QStringLiteral("zh_Hans")) || name == QStringLiteral("zh_SG")
               ? QStringLiteral("zh_CN")
               : name;
}

void addWithShorterNames(QStringList& names, QString name)
{
    for (; !name.isEmpty(); name.truncate(std::max<qsizetype>(0, name.lastIndexOf(u'_')))) {
        if (!names.contains(name))
            names.append(name);
    }
}

} // namespace

QStringList translationsToTry(const QStringList& languages)
{
    QStringList names;
    for (const QString& language : languages) {
        const QString name = QString(language).replace(u'-', u'_');
        if (isEnglish(name))
            break;
        addWithShorterNames(names, usualName(name));
    }
    return names;
}

} // namespace quindle
