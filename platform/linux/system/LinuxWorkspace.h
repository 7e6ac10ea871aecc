#pragma once

#include <QSet>
#include <QStringList>

#include "platform/Workspace.h"

namespace quindle {

/// Launches on a Linux desktop: an executable file is run, as is the application that was installed in a
/// folder; anything else goes to the desktop's own handler.
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
