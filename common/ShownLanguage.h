#pragma once

#include <QLocale>
#include <QStringList>
#include <QTranslator>

namespace quindle {

/// The language that the process shows its texts in: the user's first choice (LANGUAGE, LC_MESSAGES, LANG)
/// that has a translation. In force for as long as the object lives, which a QCoreApplication must outlive.
/// English needs no file.
class ShownLanguage
{
public:
    /// Takes the translations from `folder`, where they are named "quindle_LANGUAGE.qm". One that cannot be
    /// read counts as missing.
    explicit ShownLanguage(const QString& folder,
                           const QStringList& languages = QLocale::system().uiLanguages());
    ~ShownLanguage();
    ShownLanguage(const ShownLanguage&) = delete;
    ShownLanguage& operator=(const ShownLanguage&) = delete;

    /// Its name, such as "pt_BR"; empty where the texts are shown as they are, in English.
    const QString& name() const { return m_name; }

    /// Shows a library's texts in that language too, from "LIBRARY_LANGUAGE.qm" in `folder`. To be called
    /// once: there is room for one library.
    void addTextsOf(const QString& library, const QString& folder);

private:
    QTranslator m_translator;
    QTranslator m_others;
    QString m_name;
};

/// The folder of the translations. All programs read those in the helper's bundle.
QString translationsOf(const QString& helperBundle);

} // namespace quindle
