#pragma once

#include <array>

#include <QByteArray>

namespace quindle {

/// What a Wayland compositor gave a program that the user started, so that a window may come to the front
/// for it; empty where there is none.
QByteArray activationTokenOfProcess();

/// The same, which is then used up: neither this process nor one that it starts finds it again.
QByteArray takeActivationToken();

/// As long as it lives, windows that are activated use this token. Qt takes it from the environment; putting
/// it there leaks no memory. An empty or overlong token is not used. Main thread, one at a time.
class ActivationToken
{
public:
    explicit ActivationToken(const QByteArray& token);
    ~ActivationToken();
    ActivationToken(const ActivationToken&) = delete;
    ActivationToken& operator=(const ActivationToken&) = delete;

private:
    std::array<char, 512> m_entry{};
};

} // namespace quindle
