#pragma once

#include <functional>
#include <optional>

#include <QString>

namespace quindle {

class UserDefaults;

/// Asks for the text of a configuration code where it is known; nothing after any failure.
using OnlineModelText = std::function<std::optional<QString>(const QString& code)>;

/// The text that distinguishes computers of one family, e.g. "(13-inch, Late 2013)", by configuration code:
/// known for the demonstration computer, else from the cache "modelStringCache" in `defaults`, else from
/// `online`, whose answer the cache keeps for good. Shortened, except in the cache. Nothing for an empty
/// code; a cache or an entry of another type counts as not there.
std::optional<QString> modelText(const QString& code, UserDefaults& defaults, const OnlineModelText& online);

/// `text` with the lengthy parts of some models' names cut down.
QString shortenedModelText(QString text);

} // namespace quindle
