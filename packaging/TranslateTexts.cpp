// quindle-translate-texts TRANSLATIONS FILE RESULT [LANGUAGE]: writes FILE with translated texts to RESULT.
// The folder TRANSLATIONS has a .qm for each language. In a desktop entry (.desktop) and in AppStream's
// metainfo (.xml) each English text is followed by its translations. A manual page is translated into
// LANGUAGE, but only the description in its NAME section, the heading of its synopsis and the names of
// arguments. A text that is not marked here is an error. Part of the build only.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <vector>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>

namespace {

constexpr const char* texts[]{
    QT_TRANSLATE_NOOP("Packaging", "Battery Status"),
    QT_TRANSLATE_NOOP("Packaging", "Battery History"),
    QT_TRANSLATE_NOOP("Packaging", "Battery charge, health and time in the panel"),
    QT_TRANSLATE_NOOP("Packaging", "Battery charge, health and what becomes of them"),
    QT_TRANSLATE_NOOP("Packaging", "battery;power;charge;health;laptop;"),
    QT_TRANSLATE_NOOP("Packaging", "battery;power;charge;health;wear;laptop;"),
    QT_TRANSLATE_NOOP("Packaging", "battery charge, health and time in the panel"),
    QT_TRANSLATE_NOOP("Packaging", "battery charge, health and what becomes of them"),
    QT_TRANSLATE_NOOP("Packaging", "print the battery as Quindle Helper sees it"),
    QT_TRANSLATE_NOOP("Packaging", "SYNOPSIS"),
    QT_TRANSLATE_NOOP("Packaging", "FILE"),
    QT_TRANSLATE_NOOP("Packaging", "FORMAT"),
    QT_TRANSLATE_NOOP("Packaging", "DIR"),
    QT_TRANSLATE_NOOP("Packaging", "DATE"),
    QT_TRANSLATE_NOOP("Packaging",
                      "Quindle shows everything that the batteries of your portable computer report, in one "
                      "window. Its companion, Quindle Helper, sits in the tray of your panel with a title "
                      "made from your own template and an icon; a click there opens the battery view."),
    QT_TRANSLATE_NOOP("Packaging", "Charge, power, remaining time, health, cycles, age and temperature"),
    QT_TRANSLATE_NOOP("Packaging", "Several batteries combined into one"),
    QT_TRANSLATE_NOOP("Packaging", "Trays on X11 and on Wayland"),
    QT_TRANSLATE_NOOP("Packaging", "Nothing is sent anywhere unless you allow it"),
};

struct Language
{
    QString name;
    std::unique_ptr<QTranslator> translator;
};

std::vector<Language> languagesIn(const QString& folder)
{
    std::vector<Language> languages;
    const QString prefix = QStringLiteral("quindle_");
    for (const QString& file :
         QDir(folder).entryList({prefix + QStringLiteral("*.qm")}, QDir::Files, QDir::Name)) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(folder + u'/' + file))
            languages.push_back({file.mid(prefix.size()).chopped(3), std::move(translator)});
    }
    return languages;
}

[[noreturn]] void fail(const QString& line)
{
    std::fprintf(stderr, "quindle-translate-texts: %s\n", line.toUtf8().constData());
    std::exit(1);
}

/// Empty where the language has none.
QString translation(const Language& language, const QString& text)
{
    const auto* const known = std::find_if(std::begin(texts), std::end(texts), [&text](const char* one) {
        return text == QLatin1StringView(one);
    });
    if (known == std::end(texts))
        fail(QStringLiteral("is not marked for translators: ") + text);
    return language.translator->translate("Packaging", *known);
}

QString withEntries(const QString& file, const std::vector<Language>& languages)
{
    static const QRegularExpression entry(QStringLiteral("^(GenericName|Comment|Keywords)=(.*)$"));
    QString result;
    for (const QString& line : file.chopped(1).split(u'\n')) {
        result += line + u'\n';
        const auto found = entry.match(line);
        if (!found.hasMatch())
            continue;
        for (const Language& language : languages) {
            if (const QString text = translation(language, found.captured(2)); !text.isEmpty())
                result += QStringLiteral("%1[%2]=%3\n").arg(found.captured(1), language.name, text);
        }
    }
    return result;
}

QString withElements(const QString& file, const std::vector<Language>& languages)
{
    static const QRegularExpression element(QStringLiteral("\\n( *)<(summary|p|li)>(.*?)</\\2>"),
                                            QRegularExpression::DotMatchesEverythingOption);
    QString result;
    qsizetype end = 0;
    for (auto all = element.globalMatch(file); all.hasNext();) {
        const auto found = all.next();
        result += file.mid(end, found.capturedEnd() - end);
        end = found.capturedEnd();
        for (const Language& language : languages) {
            const QString text = translation(language, found.captured(3).simplified());
            if (!text.isEmpty())
                result += QStringLiteral("\n%1<%2 xml:lang=\"%3\">%4</%2>")
                              .arg(found.captured(1), found.captured(2), language.name, text.toHtmlEscaped());
        }
    }
    return result + file.mid(end);
}

QString withName(const QString& file, const Language& language)
{
    static const QRegularExpression line(QStringLiteral("(\\n\\.SH NAME\\n[^\\n]* \\\\- )([^\\n]*)"));
    const auto found = line.match(file);
    if (!found.hasMatch())
        fail(QStringLiteral("the manual page says in no line what it is about"));
    const QString text = translation(language, found.captured(2));
    return text.isEmpty() ? file
                          : QString(file).replace(found.capturedStart(2), found.capturedLength(2), text);
}

/// With the heading of the synopsis and, in the whole page, the names of arguments translated.
QString withSynopsis(const QString& file, const Language& language)
{
    static const QRegularExpression word(
        QStringLiteral("(?:(?<=\\\\fI)|\\b)(SYNOPSIS|FILE|FORMAT|DIR|DATE)\\b"));
    QString result;
    qsizetype end = 0;
    for (auto all = word.globalMatch(file); all.hasNext();) {
        const auto found = all.next();
        const QString text = translation(language, found.captured());
        result += file.mid(end, found.capturedStart() - end) + (text.isEmpty() ? found.captured() : text);
        end = found.capturedEnd();
    }
    return result + file.mid(end);
}

QString translatedFile(const QString& path, const QString& text, const std::vector<Language>& languages,
                       const QString& name)
{
    if (path.endsWith(QStringLiteral(".desktop")))
        return withEntries(text, languages);
    if (path.endsWith(QStringLiteral(".xml")))
        return withElements(text, languages);
    const auto found = std::find_if(languages.begin(), languages.end(),
                                    [&name](const Language& language) { return language.name == name; });
    if (found == languages.end())
        fail(QStringLiteral("there is no such language: ") + name);
    return withSynopsis(withName(text, *found), *found);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 4)
        fail(QStringLiteral("is called with a folder, a file, the result's name and perhaps a language"));
    QFile file(QString::fromLocal8Bit(argv[2]));
    if (!file.open(QIODevice::ReadOnly))
        fail(file.fileName() + QStringLiteral(" cannot be read"));
    const auto languages = languagesIn(QString::fromLocal8Bit(argv[1]));
    const QString name = argc > 4 ? QString::fromLocal8Bit(argv[4]) : QString();
    const QByteArray bytes =
        translatedFile(file.fileName(), QString::fromUtf8(file.readAll()), languages, name).toUtf8();
    QFile result(QString::fromLocal8Bit(argv[3]));
    if (!result.open(QIODevice::WriteOnly) || result.write(bytes) != bytes.size() || !result.flush())
        fail(result.fileName() + QStringLiteral(" cannot be written"));
    return 0;
}
