#pragma once

#include <QStringList>

class QWidget;

namespace quindle::test {

/// While it lives, texts are shown in the invented language that scripts/pseudo-translation makes of the
/// translators' files: in brackets, with accents, 40 % longer.
class PseudoLanguage
{
public:
    PseudoLanguage();
    ~PseudoLanguage();
    PseudoLanguage(const PseudoLanguage&) = delete;
    PseudoLanguage& operator=(const PseudoLanguage&) = delete;

private:
    class Translator;
    Translator* m_translator;
};

/// What is left of a text without its translated parts: nothing where all of it is translated, or has no
/// words.
QString untranslatedPart(const QString& text);

/// The texts with words that nobody can translate, of `window` and what is seen in it: labels, buttons,
/// lists, tool tips and what assistive technologies read. Those that have a word of `data` are left out:
/// names, serial numbers.
QStringList untranslatedTexts(const QWidget& window, const QStringList& data);

/// The texts of seen labels and buttons in `window` that have less room than they need. Labels that shorten
/// what does not fit on purpose are asked too: `mayBeCut` are the names of those that may.
QStringList cutTexts(const QWidget& window, const QStringList& mayBeCut = {});

} // namespace quindle::test
