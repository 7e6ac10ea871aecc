#include "common/ShownLanguage.h"

#include <QCoreApplication>
#include <QFile>

#include "common/TranslationChoice.h"

namespace quindle {

namespace {

bool loadInto(QTranslator& translator, const QString& folder, const QString& name)
{
    const QString file = folder + u'/' + name + QStringLiteral(".qm");
    // An empty translation would keep the next best one from being used.
    return QFile::exists(file) && translator.load(file) && !translator.isEmpty();
}

} // namespace

ShownLanguage::ShownLanguage(const QString& folder, const QStringList& languages)
{
    for (const QString& name : translationsToTry(languages)) {
        if (loadInto(m_translator, folder, QStringLiteral("quindle_") + name)) {
            m_name = name;
            QCoreApplication::installTranslator(&m_translator);
            return;
        }
    }
}

ShownLanguage::~ShownLanguage()
{
    QCoreApplication::removeTranslator(&m_translator);
    QCoreApplication::removeTranslator(&m_others);
}

void ShownLanguage::addTextsOf(const QString& library, const QString& folder)
{
    if (m_name.isEmpty())
        return;
    // Libraries name some languages without the country that the program names them with.
    for (const QString& name : {m_name, m_name.section(u'_', 0, 0)}) {
        if (loadInto(m_others, folder, library + u'_' + name)) {
            QCoreApplication::installTranslator(&m_others);
            return;
        }
    }
}

QString translationsOf(const QString& helperBundle)
{
    return helperBundle + QStringLiteral("/Contents/Resources/translations");
}

} // namespace quindle
