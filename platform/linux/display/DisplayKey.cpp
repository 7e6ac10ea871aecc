#include "platform/linux/display/DisplayKey.h"

#include <algorithm>

#include <QCryptographicHash>

namespace quindle {

namespace {

bool isNumber(QByteArrayView text)
{
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// The name of the socket in the runtime folder where it is there, else its whole path.
QByteArray waylandDisplay(const DisplayNames& names)
{
    const QByteArray folder = names.runtimeFolder + '/';
    return names.wayland.startsWith(folder) ? names.wayland.mid(folder.size()) : names.wayland;
}

/// Without the screen, as a display may have several, and without the ways to say that it is local.
QByteArray x11Display(QByteArray name)
{
    const QByteArray localSocket = "/tmp/.X11-unix/X";
    if (name.startsWith("unix:/"))
        name = name.mid(5);
    if (name.startsWith(localSocket))
        name = ':' + name.mid(localSocket.size());
    for (const char* local : {"unix/:", "unix:"})
        if (name.startsWith(local))
            name = name.mid(name.indexOf(':'));
    const qsizetype number = name.lastIndexOf(':') + 1;
    const qsizetype point = name.indexOf('.', number);
    return point > number && isNumber(QByteArrayView(name).sliced(point + 1)) ? name.left(point) : name;
}

QString fitForFileName(const QByteArray& text)
{
    // A socket's path has 108 bytes, and the folder comes first.
    constexpr qsizetype longest = 40;
    QString name;
    for (const char c : text) {
        const bool plain =
            (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-';
        name += plain ? QLatin1Char(c) : QLatin1Char('_');
    }
    if (name.size() <= longest)
        return name;
    return QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex());
}

} // namespace

QString displayKey(const DisplayNames& names)
{
    // A Wayland session usually has an X11 display too, for older programs.
    if (!names.wayland.isEmpty())
        return fitForFileName(waylandDisplay(names));
    return names.x11.isEmpty() ? QStringLiteral("none") : fitForFileName(x11Display(names.x11));
}

} // namespace quindle
