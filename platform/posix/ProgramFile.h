#pragma once

#include <QByteArray>
#include <QStringList>

namespace quindle {

/// The path of a program that can be run, as it was found; empty when there is none. A name without a slash
/// is searched for in `folders`, or in $PATH when there are none; a relative path names nothing.
QByteArray programPath(const QByteArray& program, const QStringList& folders);

/// The file of that program, links followed.
QString programFile(const QByteArray& program, const QStringList& folders);

} // namespace quindle
