#pragma once

#include "platform/Host.h"

namespace quindle {

/// Property-list files as they are on this computer.
class LinuxSystemFiles final : public SystemFiles
{
public:
    /// `root` is put before every path; empty for the computer's own files.
    explicit LinuxSystemFiles(QString root = {});

    std::optional<QVariantMap> propertyList(const QString& path) const override;

private:
    QString m_root;
};

/// The dictionary in a property-list file; nothing when there is no such file or it holds something else.
std::optional<QVariantMap> dictionaryFromFile(const QString& path);

} // namespace quindle
