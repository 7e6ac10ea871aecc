#pragma once

#include <QString>

namespace quindle {

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

} // namespace quindle
