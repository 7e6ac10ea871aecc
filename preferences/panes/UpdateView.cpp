#include "preferences/panes/UpdateView.h"

#include <QEvent>

#include "common/Translation.h"
#include "ui_UpdatePreferencesController.h"

namespace quindle {

namespace {

constexpr int widthInLines = 31;

} // namespace

UpdateView::UpdateView(const QString& version, const QString& updateSource)
    : m_ui(std::make_unique<Ui::UpdatePreferencesController>())
{
    m_ui->setupUi(this);
    m_ui->versionLabel->setText(version);
    m_ui->updateSourceLabel->setText(updateSource);
    // Text that can be selected is aligned by its own direction, and a version has none.
    if (isRightToLeft())
        m_ui->versionLabel->setAlignment(Qt::AlignTop | Qt::AlignRight | Qt::AlignAbsolute);
    fitToFont();
    fixWidth();
}

UpdateView::~UpdateView() = default;

void UpdateView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fixWidth();
    PaneView::changeEvent(event);
}

// Long paths and names wrap in it.
void UpdateView::fixWidth()
{
    setFixedWidth(fontMetrics().height() * widthInLines);
}

QString versionText(const std::optional<QVariantMap>& info)
{
    const QVariantMap values = info.value_or(QVariantMap());
    const QString version = values.value(QStringLiteral("CFBundleShortVersionString")).toString();
    const QString build = values.value(QStringLiteral("CFBundleVersion")).toString();
    if (version.isEmpty() && build.isEmpty())
        return translated("Preferences", "Unknown", "the version");
    if (version.isEmpty() || build.isEmpty() || version == build)
        return version.isEmpty() ? build : version;
    return version + QStringLiteral(" (") + build + QLatin1Char(')');
}

QString updateSourceText(const InstallationSource& source)
{
    switch (source.kind) {
    case InstallationSource::Kind::Package:
        return translated("Preferences",
                          "This is the package \"%1\". Newer versions of it are installed with %2, as those "
                          "of the other packages of this system.")
            .arg(source.package, source.manager);
    case InstallationSource::Kind::Build:
        return translated("Preferences",
                          "This copy was built on this computer. Newer source, built again, updates it.");
    case InstallationSource::Kind::Elsewhere:
        break;
    }
    return translated("Preferences", "Newer versions come from where this copy was installed from.");
}

} // namespace quindle

#include "moc_UpdateView.cpp"
