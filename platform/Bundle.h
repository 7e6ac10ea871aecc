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

/// Where the running program was installed from.
struct InstallationSource
{
    enum class Kind {
        Package,  ///< the system's package manager keeps its files
        Build,    ///< it runs from the folder it was built in
        Elsewhere ///< nobody here knows
    };

    Kind kind = Kind::Elsewhere;
    QString manager; ///< of a package: the command its user knows it by, "apt"
    QString package; ///< of a package: its name
};

/// The path of the helper's bundle, seen from the running one: itself where its path contains
/// "Quindle-Helper", otherwise the one among the resources of the main application that it then is.
QString helperBundlePath(const QString& runningBundlePath);

} // namespace quindle
