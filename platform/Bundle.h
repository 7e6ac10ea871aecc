#pragma once

#include <optional>

#include <QString>
#include <QVariantMap>

namespace quindle {

/// The running program's bundle: the folder tree that holds the program, its information and its resources.
/// Nothing is written there. Main thread only.
class Bundle
{
public:
    virtual ~Bundle() = default;

    /// The bundle's absolute path, ".../Quindle-Helper.app", without a slash at its end.
    /// Empty when the program's own place cannot be found out; every other path derived from it then leads
    /// nowhere.
    virtual QString path() const = 0;

    /// The dictionary of Contents/Info.plist, read at each call.
    /// Nothing when the path is unknown, or the file is missing, cannot be read or holds no dictionary; each
    /// caller decides whether that is fatal to it.
    virtual std::optional<QVariantMap> infoDictionary() const = 0;

    /// The folder of the program's pictures.
    /// It need not exist: a picture that is not there is not drawn.
    virtual QString resourcesPath() const { return path() + QStringLiteral("/Contents/Resources"); }
};

/// Where the running program was installed from, for the pane that explains how to update it.
struct InstallationSource
{
    enum class Kind {
        Package,  ///< the system's package manager owns its files
        Build,    ///< it runs from the folder it was built in
        Elsewhere ///< unknown, and the answer whenever looking fails
    };

    Kind kind = Kind::Elsewhere;
    QString manager; ///< of a package: the command its user knows it by, "apt"; otherwise empty
    QString package; ///< of a package: its name; otherwise empty
};

/// A program of a bundle; whether it is there is not checked.
QString programInBundle(const QString& bundlePath, const QString& program);

/// The path of the helper's bundle, seen from the running one: itself where its path contains
/// "Quindle-Helper", otherwise the one among the resources of the main application that it then is. Whether
/// a bundle is there is not checked.
QString helperBundlePath(const QString& runningBundlePath);

/// The main application's program, seen from the helper's bundle among its resources. Empty for an empty
/// path; whether a program is there is not checked.
QString mainApplicationProgram(const QString& helperBundlePath);

} // namespace quindle
