#pragma once

#include <optional>

#include <QString>

namespace quindle {

class UserDefaults;

/// The text that tells computers of one family apart, e.g. "(13-inch, Late 2013)", by configuration code:
/// known for the demonstration computer, else from the cache "modelStringCache" in `defaults`, shortened.
/// Nothing for an empty code and for one that is not cached; a cache or an entry of another type counts as
/// not there.
std::optional<QString> modelText(const QString& code, const UserDefaults& defaults);

/// `text` with the lengthy parts of some models' names cut down.
QString shortenedModelText(QString text);

} // namespace quindle
