#include "remote/WindowMessage.h"

#include <algorithm>
#include <array>

#include <QtEndian>

#include "platform/MessageLink.h"

namespace quindle {

namespace {

using Kind = WindowMessage::Kind;

constexpr std::array knownKinds{
    Kind::OpenView,  Kind::ToggleView,   Kind::ShowPreferences, Kind::ShowMenuBarText,
    Kind::Refreshed, Kind::Announced,    Kind::Heard,           Kind::Idle,
    Kind::Watched,   Kind::RefreshTitle, Kind::ReloadBattery,   Kind::Clicked,
    Kind::Quit,      Kind::Stored,       Kind::PanelShows,
};

constexpr qsizetype longestText = 1024;

// One byte, then whole numbers of four bytes, most significant first.
constexpr qsizetype kindAt = 0;
constexpr qsizetype hasPointerAt = 1;
constexpr qsizetype xAt = 5;
constexpr qsizetype yAt = 9;
constexpr qsizetype numberAt = 13;
constexpr qsizetype textSizeAt = 17; ///< the data are what follows the text
constexpr qsizetype textAt = 21;
constexpr qsizetype longestData = MessageLink::longestMessage - textAt - longestText;

void put(QByteArray& bytes, qsizetype at, quint32 number)
{
    qToBigEndian(number, bytes.data() + at);
}

quint32 numberIn(const QByteArray& bytes, qsizetype at)
{
    return qFromBigEndian<quint32>(bytes.constData() + at);
}

std::optional<QPoint> pointerIn(const QByteArray& bytes)
{
    if (numberIn(bytes, hasPointerAt) == 0)
        return std::nullopt;
    return QPoint(static_cast<qint32>(numberIn(bytes, xAt)), static_cast<qint32>(numberIn(bytes, yAt)));
}

} // namespace

bool isRequest(WindowMessage::Kind kind)
{
    return kind >= Kind::OpenView && kind <= Kind::ShowMenuBarText;
}

QByteArray encoded(const WindowMessage& message)
{
    const QByteArray text = message.text.left(longestText);
    const QPoint pointer = message.pointer.value_or(QPoint());
    QByteArray bytes(textAt, '\0');
    bytes[kindAt] = static_cast<char>(message.kind);
    put(bytes, hasPointerAt, message.pointer ? 1 : 0);
    put(bytes, xAt, static_cast<quint32>(pointer.x()));
    put(bytes, yAt, static_cast<quint32>(pointer.y()));
    put(bytes, numberAt, message.number);
    put(bytes, textSizeAt, static_cast<quint32>(text.size()));
    return bytes + text + (message.data.size() <= longestData ? message.data : QByteArray());
}

std::optional<WindowMessage> decoded(const QByteArray& bytes)
{
    // Another process is not trusted: a damaged message counts as none.
    if (bytes.size() < textAt || bytes.size() > MessageLink::longestMessage)
        return std::nullopt;
    const auto kind = static_cast<Kind>(bytes[kindAt]);
    const quint32 textSize = numberIn(bytes, textSizeAt);
    const bool isKnown = std::find(knownKinds.begin(), knownKinds.end(), kind) != knownKinds.end();
    if (!isKnown || textSize > longestText || textAt + qsizetype{textSize} > bytes.size())
        return std::nullopt;
    return WindowMessage{.kind = kind,
                         .text = bytes.mid(textAt, textSize),
                         .pointer = pointerIn(bytes),
                         .number = numberIn(bytes, numberAt),
                         .data = bytes.mid(textAt + textSize)};
}

} // namespace quindle
