#include "platform/macos/MacLoginItems.h"

#include <QLoggingCategory>

#include "platform/FileUrl.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(loginLog, "quindle.login")

constexpr LoginItems::Item onlyItem = 1;

} // namespace

MacLoginItems::MacLoginItems(LoginCalls& calls, const QString& helperUrl)
    : m_calls(calls)
    , m_helperUrl(normalFileUrl(helperUrl))
{
}

std::optional<std::vector<LoginItems::Item>> MacLoginItems::snapshot()
{
    return m_calls.isOn() ? std::vector{onlyItem} : std::vector<Item>();
}

std::optional<QString> MacLoginItems::resolve(Item item)
{
    return item == onlyItem && m_calls.isOn() ? std::optional(m_helperUrl) : std::nullopt;
}

void MacLoginItems::insertBeforeFirst(const QString& fileUrl)
{
    // Nothing else can be added there.
    if (normalFileUrl(fileUrl) == m_helperUrl)
        setOn(true);
}

void MacLoginItems::remove(Item item)
{
    if (item == onlyItem)
        setOn(false);
}

void MacLoginItems::setEnabled(const QString& /*identifier*/, bool enabled)
{
    setOn(enabled);
}

void MacLoginItems::setOn(bool isOn)
{
    // Registering once more is an error there.
    if (m_calls.isOn() == isOn)
        return;
    const QString fault = m_calls.setOn(isOn);
    if (!fault.isEmpty() && fault != m_logged)
        qCWarning(loginLog, "the login item cannot be changed: %ls", qUtf16Printable(fault));
    m_logged = fault;
}

} // namespace quindle
