#pragma once

#include <functional>
#include <memory>

#include <QWidget>

#include "platform/Bundle.h"
#include "preferences/window/WindowControllers.h"

namespace quindle {

class Bundle;

/// The pane "Update": which version runs and where newer ones come from. It has no behaviour.
class UpdatePreferencesController : public QDPreferencesWindowControllerProtocol
{
public:
    /// `installationSource` is asked when the view is made.
    UpdatePreferencesController(const Bundle& bundle, std::function<InstallationSource()> installationSource);
    ~UpdatePreferencesController() override;

    /// inherited: without a caller in this program. Fatal, "Method not implemented": panes come from their
    /// interface file only.
    [[noreturn]] static void initWithCoder();

    QString preferencesIdentifier() const override;
    QString preferencesTitle() const override;
    QIcon preferencesIcon() const override;
    QWidget& view() override;

private:
    const Bundle& m_bundle;
    std::function<InstallationSource()> m_installationSource;
    std::unique_ptr<QWidget> m_view;
};

} // namespace quindle
