#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <memory>

#include "platform/MessageLink.h"
#include "remote/WindowMessage.h"

namespace quindle {

/// The helper's end of the program that has its windows: started when a window is asked for, and let go when
/// nothing has been open for a while. Whatever happens to it, the next request works, and nothing here waits.
/// Each kind of failure is logged once, and again only after the program has answered in between. Main thread
/// only.
class WindowsProcess
{
public:
    /// Time since some moment; it only runs forward.
    using SteadyClock = std::function<std::chrono::milliseconds()>;
    using Receiver = std::function<void(const WindowMessage&)>;

    /// Longer than anything that the program does in one go, even looking up the model's name.
    static constexpr std::chrono::milliseconds patience{10'000};

    /// The starter must outlive it.
    WindowsProcess(ProgramStarter& starter, SteadyClock now);
    ~WindowsProcess();

    WindowsProcess(const WindowsProcess&) = delete;
    WindowsProcess& operator=(const WindowsProcess&) = delete;

    /// Sets what is called with each message of the program. It must not destroy this object.
    void setReceiver(Receiver received) { m_received = std::move(received); }

    /// Sets what is called when the program has gone, or was let go.
    void setGone(std::function<void()> gone) { m_gone = std::move(gone); }

    /// Asks for a window, starting the program where it does not run. A program that has left a request
    /// undone for too long, or takes none, is killed and another one started. While nothing can be open yet,
    /// toggling the view opens it, so that an impatient second click does not close what has not been seen.
    void request(const WindowMessage& request);

    /// The same for what only matters to a program that runs.
    void send(const WindowMessage& message);

    bool isRunning() const { return m_program != nullptr; }

private:
    enum class Failure { CannotStart, Hangs, EndedEarly, NotUnderstood, Count };

    bool start();
    bool ask(WindowMessage request);
    void endIfItHangs();
    void end();
    void receive(const QByteArray& bytes);
    void hear(quint32 requests);
    void handleEnd();
    void letGo();
    void log(Failure failure);

    ProgramStarter& m_starter;
    SteadyClock m_now;
    Receiver m_received;
    std::function<void()> m_gone;
    std::unique_ptr<LinkedProgram> m_program;
    quint32 m_requests = 0; ///< made of this program
    quint32 m_heard = 0;    ///< of these, carried out
    std::chrono::milliseconds m_waitingSince{};
    bool m_endsWithHelper = false;
    std::array<bool, static_cast<std::size_t>(Failure::Count)> m_logged{};
};

} // namespace quindle
