#pragma once

#include <optional>

#include <QByteArray>
#include <QHash>
#include <QList>

/// Desktop entries, the files by which desktops and menus start programs, as far as needed to know what one
/// starts. All texts are the file's bytes: paths in them are in the file system's encoding.
namespace quindle {

/// The group "Desktop Entry" of a file: values as they are written, by key, translations under theirs
/// ("Name[de]"). A repeated key has its last value, even across repeated groups.
using DesktopEntry = QHash<QByteArray, QByteArray>;

/// Nothing for bytes without that group. Lines that are neither group, key nor comment are skipped.
std::optional<DesktopEntry> desktopEntryFromBytes(const QByteArray& bytes);

/// False when the key is missing or not true.
bool isTrue(const DesktopEntry& entry, const QByteArray& key);

/// A written value of type "string" with its escapes (\s \n \t \r \\) resolved; unknown ones stay.
QByteArray unescapedValue(const QByteArray& written);

/// The program and its arguments that a written value of "Exec" starts without files or addresses to open:
/// quoting resolved, field codes gone. Nothing when it is broken: no program, a quote that does not end, an
/// unknown field code, a NUL.
std::optional<QList<QByteArray>> execArguments(const QByteArray& written);

/// The value to be written for "Exec" that starts a program without arguments.
QByteArray execValue(const QByteArray& program);

} // namespace quindle
