#include "platform/linux/session/ActivationToken.h"

#include <algorithm>
#include <cstdlib>

#include <QtGlobal>

namespace quindle {

namespace {

constexpr const char* variable = "XDG_ACTIVATION_TOKEN";

} // namespace

QByteArray activationTokenOfProcess()
{
    return qgetenv(variable);
}

QByteArray takeActivationToken()
{
    const QByteArray token = activationTokenOfProcess();
    ::unsetenv(variable);
    return token;
}

ActivationToken::ActivationToken(const QByteArray& token)
{
    const QByteArray entry = QByteArray(variable) + '=' + token;
    if (token.isEmpty() || static_cast<std::size_t>(entry.size()) >= m_entry.size())
        return;
    std::copy(entry.begin(), entry.end(), m_entry.begin());
    // putenv and not setenv, which leaks the old value at each call.
    ::putenv(m_entry.data());
}

ActivationToken::~ActivationToken()
{
    // Even one that came with the start: it is used up or outdated by now.
    ::unsetenv(variable);
}

} // namespace quindle
