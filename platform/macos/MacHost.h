#pragma once

#include "platform/Host.h"

namespace quindle {

class MacClock : public Clock
{
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

/// Property lists of either encoding, read by this project's own reader.
class MacSystemFiles : public SystemFiles
{
public:
    std::optional<QVariantMap> propertyList(const QString& path) const override;
};

} // namespace quindle
