#pragma once

#include <QString>

#include "platform/Bundle.h"

namespace quindle {

/// The bundle around a program at BUNDLE/Contents/Linux/PROGRAM.
class LinuxBundle final : public Bundle
{
public:
    /// `executablePath` may be a link to the program.
    explicit LinuxBundle(const QString& executablePath = QStringLiteral("/proc/self/exe"));

    QString path() const override { return m_path; }
    std::optional<QVariantMap> infoDictionary() const override;

private:
    QString m_path;
};

} // namespace quindle
