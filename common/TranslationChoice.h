#pragma once

#include <QStringList>

namespace quindle {

/// The names of the translations to try, best first, for a user who reads `languages`, best first, as
/// QLocale::uiLanguages gives them: "pt-BR" gives "pt_BR", then "pt". The texts are English, so nothing after
/// English is tried: somebody who reads English better than German gets no German.
QStringList translationsToTry(const QStringList& languages);

} // namespace quindle
