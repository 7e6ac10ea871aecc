#pragma once

#include <QLocale>
#include <QStringList>
#include <QTranslator>

namespace quindle {

/// The language that the process shows its texts in: the best of the user's (LANGUAGE, LC_MESSAGES, LANG)
/// that there is a translation for. In force for as long as the object lives, which a QCoreApplication must
/// outlive. For English no file is looked for.
class ShownLanguage
{
public:
    /// Of the translations in `folder`, named "quindle_LANGUAGE.qm". What cannot be read is not there.
    explicit ShownLanguage(const QString& folder,
                           const QStringList& languages = QLocale::system().uiLanguages());
    ~ShownLanguage();
    ShownLanguage(const ShownLanguage&) = delete;
    ShownLanguage& operator=(const ShownLanguage&) = delete;

    /// Its name, such as "pt_BR"; empty where the texts are shown as they are, in English.
    const QString& name() const { return m_name; }

    /// Has the texts of a library shown in it too, of "LIBRARY_LANGUAGE.qm" in `folder`; once.
    void addTextsOf(const QString& library, const QString& folder);

private:
    QTranslator m_translator;
    QTranslator m_others;
    QString m_name;
};

/// The folder of the translations. All programs read those in the helper's bundle.
QString translationsOf(const QString& helperBundle);

} // namespace quindle
