#pragma once

#include <optional>

#include <QString>
#include <QVariantMap>

namespace quindle {

/// The running program's bundle: the folder tree that holds program, information and resources.
class Bundle
{
public:
    virtual ~Bundle() = default;

    /// The bundle's path, ".../Quindle-Helper.app"; empty when it is not known.
    virtual QString path() const = 0;

    /// The dictionary of Contents/Info.plist; nothing when there is none.
    virtual std::optional<QVariantMap> infoDictionary() const = 0;

    /// The folder of the program's pictures.
    virtual QString resourcesPath() const { return path() + QStringLiteral("/Contents/Resources"); }
};

} // namespace quindle
