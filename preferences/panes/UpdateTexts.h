#pragma once

#include <optional>

#include <QString>
#include <QVariantMap>

#include "platform/InstallationSource.h"

namespace quindle {

/// The version of a bundle's information, with the build in brackets where it says something else: "0.1 (7)".
/// "Unknown" without either.
QString versionText(const std::optional<QVariantMap>& info);

/// Where newer versions come from.
QString updateSourceText(const InstallationSource& source);

} // namespace quindle
