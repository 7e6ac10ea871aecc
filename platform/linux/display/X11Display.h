#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>

#include <QByteArray>

namespace quindle {

class EndOfWork;
class X11Connection;

/// The name of the display whose windows a process shows, by three variables of its environment: DISPLAY, or
/// nothing where WAYLAND_DISPLAY names one too, since many Wayland desktops start their X server at the first
/// connection. The toolkit's own variable (QT_QPA_PLATFORM) decides before both.
QByteArray x11DisplayName(const QByteArray& x11, const QByteArray& wayland,
                          const QByteArray& toolkitPlatform);

/// The X server of the session, asked now and then over short connections, each on a thread of its own: the
/// wait for a server that is stopped or does not answer has a bound. Main thread only.
class X11Display
{
public:
    /// The display of this process; with an empty name nothing is ever asked.
    X11Display();

    X11Display(QByteArray name, std::chrono::milliseconds patience);
    ~X11Display();
    X11Display(const X11Display&) = delete;
    X11Display& operator=(const X11Display&) = delete;

    bool hasName() const { return !m_name.isEmpty(); }

    /// What `question` answers on an open connection. Nothing where there is no display, or no answer in
    /// time; while an answer is owed, no further question is asked. `question` runs on another thread.
    template <typename Question>
    auto ask(Question question) -> std::optional<std::invoke_result_t<Question, const X11Connection&>>
    {
        using Answer = std::invoke_result_t<Question, const X11Connection&>;
        const auto answer = std::make_shared<std::optional<Answer>>();
        const auto visit = [answer, question](const X11Connection& connection) {
            *answer = question(connection);
        };
        return visitInTime(visit) ? *answer : std::nullopt;
    }

private:
    using Visit = std::function<void(const X11Connection&)>;

    bool visitInTime(Visit visit);

    QByteArray m_name;
    std::chrono::milliseconds m_patience;
    std::shared_ptr<EndOfWork> m_lastVisit;
};

} // namespace quindle
