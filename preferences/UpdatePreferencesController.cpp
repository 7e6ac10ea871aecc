#include "preferences/UpdatePreferencesController.h"

#include "common/FatalError.h"
#include "platform/Bundle.h"
#include "preferences/UpdateTexts.h"
#include "preferences/UpdateView.h"

namespace quindle {

UpdatePreferencesController::UpdatePreferencesController(
    const Bundle& bundle, std::function<InstallationSource()> installationSource)
    : m_bundle(bundle)
    , m_installationSource(std::move(installationSource))
{
}

UpdatePreferencesController::~UpdatePreferencesController() = default;

void UpdatePreferencesController::initWithCoder()
{
    fatalError(u"Method not implemented");
}

QString UpdatePreferencesController::preferencesIdentifier() const
{
    return QStringLiteral("Update");
}

QString UpdatePreferencesController::preferencesTitle() const
{
    return QStringLiteral("Update");
}

QIcon UpdatePreferencesController::preferencesIcon() const
{
    QIcon icon(m_bundle.path() + QStringLiteral("/Contents/Resources/icons/prefUpdate.svg"));
    icon.setIsMask(true);
    return icon;
}

QWidget& UpdatePreferencesController::view()
{
    if (!m_view)
        m_view = std::make_unique<UpdateView>(versionText(m_bundle.infoDictionary()),
                                              updateSourceText(m_installationSource()));
    return *m_view;
}

} // namespace quindle
