#include "widgets/WindowLanguage.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace quindle {

WindowLanguage::WindowLanguage(const QString& folder)
    : m_language(folder)
{
    if (m_language.name().isEmpty())
        return;
    m_language.addTextsOf(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    // Of the language that is shown, not of the locale: English texts do not run from right to left.
    QGuiApplication::setLayoutDirection(QLocale(m_language.name()).textDirection());
}

} // namespace quindle
