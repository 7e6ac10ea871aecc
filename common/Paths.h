#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quindle {

/// A path of the system as text. Bytes that are not UTF-8 become lone surrogates (U+DC80 to U+DCFF), so that
/// `pathBytes` gives back the same bytes in any locale.
QString pathText(const QByteArray& bytes);

/// A path in the bytes that the system knows it by.
QByteArray pathBytes(const QString& text);

/// A program's arguments without its own name; each may be a path.
QStringList argumentTexts(int count, const char* const* arguments);

/// The user's home folder: $HOME, else the account's. Empty when neither is an absolute path.
QString homeFolder();

/// The path without its last component, by the platform's rules: "/a/b" gives "/a", "/a/" and "/" give "/", a
/// relative single name and the empty text give the empty text.
QString pathWithoutLastComponent(const QString& path);

/// The path with a leading "~" replaced by the user's home folder; "~name" is left as it is, and so is every
/// path of a user without a home folder.
QString pathWithTildeExpanded(const QString& path);

} // namespace quindle
