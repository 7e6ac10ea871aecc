#pragma once

#include <memory>
#include <optional>

#include <QString>
#include <QVariantMap>

#include "platform/Bundle.h"
#include "preferences/panes/PaneView.h"

namespace quindle {

namespace Ui {
class UpdatePreferencesController;
}

/// The view of the pane "Update", from the interface file "UpdatePreferencesController".
class UpdateView : public PaneView
{
    Q_OBJECT

public:
    UpdateView(const QString& version, const QString& updateSource);
    ~UpdateView() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void fixWidth();

    std::unique_ptr<Ui::UpdatePreferencesController> m_ui;
};

/// The version of a bundle's information, with the build in brackets where it says something else: "0.1 (7)".
/// "Unknown" without either.
QString versionText(const std::optional<QVariantMap>& info);

/// Where newer versions come from.
QString updateSourceText(const InstallationSource& source);

} // namespace quindle
