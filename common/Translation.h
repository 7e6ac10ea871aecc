#pragma once

#include <QString>

class QLocale;

/// Texts in the user's language. The program's own are English and are in the sources; a translation is
/// looked up where a text is shown, and nowhere else. QT_TRANSLATE_NOOP(context, text) marks a text that is
/// shown elsewhere.
namespace quindle {

/// `text` in the language in force; as it is without a translation. `context` groups texts for translators,
/// `about` tells two equal ones apart.
QString translated(const char* context, const char* text, const char* about = nullptr);

/// The same in the plural form for `count`. A %1 in the text is left for the number itself, which callers
/// write differently.
QString translated(const char* context, const char* text, const char* about, qint64 count);

/// The locale of the language in force; C for English.
QLocale shownLocale();

/// Whether the language in force runs from right to left.
bool runsRightToLeft();

/// `text` with a direction of its own where the language in force runs from right to left, so that its sign,
/// number and unit, or words of another language, keep their order beside other texts.
QString isolatedText(const QString& text);

/// The sign between a whole number and its decimals in the language in force.
QString decimalSign();

/// `number` with that sign in place of the point.
QString withDecimalSign(const QString& number);

/// `date`, as a locale writes it, with the digits 0 to 9, which all figures have.
QString withAsciiDigits(QString date);

} // namespace quindle
