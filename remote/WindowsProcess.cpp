#include "remote/WindowsProcess.h"

#include <utility>

#include <QLoggingCategory>

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(windowsLog, "quindle.windows")

using Kind = WindowMessage::Kind;

constexpr std::array failureTexts{
    "the program of the windows cannot be started",
    "the program of the windows does not answer and was ended",
    "the program of the windows ended unexpectedly",
    "a message of the program of the windows was not understood",
};

} // namespace

WindowsProcess::WindowsProcess(ProgramStarter& starter, SteadyClock now)
    : m_starter(starter)
    , m_now(std::move(now))
{
}

WindowsProcess::~WindowsProcess() = default;

void WindowsProcess::request(const WindowMessage& request)
{
    endIfItHangs();
    if (m_program && ask(request))
        return;
    // A program that takes no message has ended, which is not known yet, or does not read.
    if (m_program)
        end();
    if (start() && !ask(request))
        end();
}

bool WindowsProcess::ask(WindowMessage request)
{
    // A new process has no view that could be closed.
    if (m_heard == 0 && request.kind == Kind::ToggleView)
        request.kind = Kind::OpenView;
    // From the first unanswered request on.
    if (m_heard == m_requests)
        m_waitingSince = m_now();
    ++m_requests;
    return m_program->link().send(encoded(request));
}

void WindowsProcess::send(const WindowMessage& message)
{
    if (m_program)
        m_program->link().send(encoded(message));
}

void WindowsProcess::endIfItHangs()
{
    const bool isWaitedFor = m_program && m_heard != m_requests;
    if (isWaitedFor && m_now() - m_waitingSince >= patience)
        end();
}

void WindowsProcess::end()
{
    log(Failure::Hangs);
    m_program->kill();
    letGo();
}

bool WindowsProcess::start()
{
    m_program = m_starter.start();
    if (!m_program) {
        log(Failure::CannotStart);
        return false;
    }
    m_requests = 0;
    m_heard = 0;
    m_program->link().setReceiver([this](const QByteArray& bytes) { receive(bytes); });
    m_program->link().setClosed([this] { handleEnd(); });
    return true;
}

void WindowsProcess::receive(const QByteArray& bytes)
{
    const auto message = decoded(bytes);
    if (!message) {
        log(Failure::NotUnderstood);
    } else if (message->kind == Kind::Heard) {
        hear(message->number);
    } else if (message->kind == Kind::Idle) {
        // A request on its way to the program counts more.
        if (message->number == m_requests)
            letGo();
    } else {
        m_endsWithHelper = m_endsWithHelper || message->kind == Kind::Quit;
        if (m_received)
            m_received(*message);
    }
}

void WindowsProcess::hear(quint32 requests)
{
    m_heard = requests;
    m_waitingSince = m_now();
    // It works: the next failure is a new one, and logged again.
    m_logged.fill(false);
}

void WindowsProcess::handleEnd()
{
    if (!m_endsWithHelper)
        log(Failure::EndedEarly);
    letGo();
}

void WindowsProcess::letGo()
{
    m_program.reset();
    if (m_gone)
        m_gone();
}

void WindowsProcess::log(Failure failure)
{
    const auto index = static_cast<std::size_t>(failure);
    if (!std::exchange(m_logged[index], true))
        qCWarning(windowsLog, "%s", failureTexts[index]);
}

} // namespace quindle
