#pragma once

#include "platform/LoginItems.h"
#include "platform/macos/SystemCalls.h"

namespace quindle {

/// The login item of this application alone: since macOS 13 no program sees the others of the session.
class MacLoginItems : public LoginItems
{
public:
    /// `helperUrl` is what the item starts, the file URL of the helper's bundle.
    MacLoginItems(LoginCalls& calls, const QString& helperUrl);

    std::optional<std::vector<Item>> snapshot() override;
    std::optional<QString> resolve(Item item) override;
    void insertBeforeFirst(const QString& fileUrl) override;
    void remove(Item item) override;
    void setEnabled(const QString& identifier, bool enabled) override;

private:
    void setOn(bool isOn);

    LoginCalls& m_calls;
    QString m_helperUrl;
    QString m_logged; ///< the failure that was logged last
};

} // namespace quindle
