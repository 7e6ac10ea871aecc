#pragma once

#include <QSet>
#include <QStringList>

#include "platform/Workspace.h"

namespace quindle {

/// Launches on a Linux desktop: an executable file is run, and so is the program of the application in the
/// folder that it was installed in; anything else is given to the desktop's own handler.
class LinuxWorkspace final : public Workspace
{
public:
    /// Where xdg-open or gio is looked for; empty for the folders of PATH.
    explicit LinuxWorkspace(QStringList handlerFolders = {});

    /// A failure is logged once for each path.
    void launchApplication(const QString& path) override;

private:
    bool launch(const QString& path) const;

    QStringList m_handlerFolders;
    QSet<QString> m_failed;
};

} // namespace quindle
