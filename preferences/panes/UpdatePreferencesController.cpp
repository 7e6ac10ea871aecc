#include "preferences/panes/UpdatePreferencesController.h"

#include <QBuffer>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>

#include "common/FatalError.h"
#include "common/FileContents.h"
#include "common/Translation.h"
#include "platform/Bundle.h"
#include "preferences/panes/UpdateView.h"

namespace quindle {

namespace {

/// The toolkit opens files by names in UTF-8 only, so one at another path is read for it, in a size to scale
/// from.
QIcon iconFromFile(const QString& path)
{
    if (path.isValidUtf16())
        return QIcon(path);
    constexpr qint64 mostBytes = qint64{1024} * 1024;
    constexpr QSize size(128, 128);
    QBuffer drawing;
    drawing.setData(fileContents(path, mostBytes).bytes);
    QImageReader reader(&drawing, "svg");
    reader.setScaledSize(size);
    return QIcon(QPixmap::fromImage(reader.read()));
}

} // namespace

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
    return translated("Preferences", "Update", "title of the pane");
}

QIcon UpdatePreferencesController::preferencesIcon() const
{
    QIcon icon = iconFromFile(m_bundle.resourcesPath() + QStringLiteral("/icons/prefUpdate.svg"));
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
