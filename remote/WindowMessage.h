#pragma once

#include <optional>

#include <QByteArray>
#include <QPoint>

/// What the helper and the program of its windows say to each other.
namespace quindle {

struct WindowMessage
{
    /// The number of a kind never gets another meaning: after an update both may be of different versions.
    enum class Kind : quint8 {
        // From the helper.
        OpenView = 1,        ///< the battery view; raised where it is open
        ToggleView = 2,      ///< the same, but closed where it is open
        ShowPreferences = 3, ///< `text`, `pointer`, `number` and `data` as for the other three requests
        ShowMenuBarText = 4,
        Refreshed = 5,  ///< the helper has read the battery and shown it; `number` as in requests
        PanelShows = 6, ///< of the item: `number` is a ShownItem's form, `text` its text, `data` its picture

        // From either.
        Announced = 20, ///< a notification between processes; `text` is its name

        // From the windows.
        Heard = 40,         ///< `number` requests have been carried out so far
        Idle = 41,          ///< the same, and nothing has been open for a while: the program may end
        Watched = 42,       ///< somebody looks at figures from now on (`number` 1), or no more (0)
        RefreshTitle = 43,  ///< a setting of the title was changed
        ReloadBattery = 44, ///< a setting of the battery was changed
        Clicked = 45,       ///< the fact `number` (a FactClick) was clicked, which changes a model
        Quit = 46,
        Stored = 47, ///< of a recorded computer: `data` was stored in the settings database `text`
    };

    Kind kind{};
    /// Of a request: what lets a window come to the front on Wayland; may be empty.
    QByteArray text = {};
    /// Of a request: where the pointer was, in pixels of the X11 screen; nothing where that is not known.
    std::optional<QPoint> pointer = {};
    /// Of a request: how many later states of a recorded computer have been entered.
    quint32 number = 0;
    /// Of a request: what the services of the computer remember (HelperServices).
    QByteArray data = {};

    friend bool operator==(const WindowMessage&, const WindowMessage&) = default;
};

/// Whether that is one of the four that ask for a window.
bool isRequest(WindowMessage::Kind kind);

/// At most `MessageLink::longestMessage` bytes: data that is longer is left out, and text cut.
QByteArray encoded(const WindowMessage& message);

/// The inverse; nothing for bytes that are not a message, or one of an unknown kind.
std::optional<WindowMessage> decoded(const QByteArray& bytes);

} // namespace quindle
