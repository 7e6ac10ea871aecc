#include "application/pages/SettingsPage.h"

#include <algorithm>

#include <QEvent>
#include <QPointer>
#include <QVBoxLayout>

#include "application/pages/HistorySettingsView.h"
#include "application/pages/WarningSettingsView.h"
#include "platform/NotificationCenter.h"
#include "preferences/panes/GeneralPreferencesController.h"
#include "preferences/panes/PaneView.h"

namespace quindle {

namespace {

constexpr int widestSettings = 46; // lines

} // namespace

SettingsPage::SettingsPage(GeneralPreferencesController& general, UserDefaults& own,
                           DistributedNotificationCenter& center, PowerManagers* powerManagers,
                           std::function<void()> deleteHistory, QWidget* parent)
    : ScrollPage(parent)
    , m_general(general)
    , m_warnings(new WarningSettingsView(own, center, powerManagers))
    , m_history(new HistorySettingsView(own, center, std::move(deleteHistory)))
{
    setObjectName(QStringLiteral("settingsPage"));
    setAccessibleName(tr("Settings"));
    for (PaneView* pane : panes()) {
        pane->setCompact(true);
        pane->fitToFont();
    }
    alignCaptions();
    auto* layout = new QVBoxLayout(&content());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    // Each gets its parent here: Tab goes in the order in which they get one.
    layout->addWidget(&general.view());
    layout->addWidget(m_warnings);
    layout->addWidget(m_history);
    layout->addStretch(1);
    // An observer stays for as long as the process, which may be longer than the page does.
    center.addObserver(QStringLiteral("SettingsChangedNotification"), [page = QPointer(this)] {
        if (page && page->isVisible())
            page->showStored();
    });
}

void SettingsPage::showStored()
{
    m_warnings->showLevels();
    m_history->refresh();
}

SettingsPage::~SettingsPage()
{
    // The pane's view is its controller's.
    m_general.view().setParent(nullptr);
}

std::array<PaneView*, 3> SettingsPage::panes() const
{
    return {qobject_cast<PaneView*>(&m_general.view()), m_warnings, m_history};
}

void SettingsPage::alignCaptions()
{
    int widest = 0;
    for (const PaneView* pane : panes())
        widest = std::max(widest, pane->captionWidth());
    for (PaneView* pane : panes())
        pane->setCaptionWidth(widest);
}

void SettingsPage::changeEvent(QEvent* event)
{
    ScrollPage::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        alignCaptions();
}

void SettingsPage::showEvent(QShowEvent* event)
{
    // Others may have changed the settings while the page was not seen.
    m_general.viewWillAppear();
    m_warnings->refresh();
    m_history->refresh();
    ScrollPage::showEvent(event);
}

void SettingsPage::hideEvent(QHideEvent* event)
{
    m_history->clearMessage();
    ScrollPage::hideEvent(event);
}

void SettingsPage::resizeEvent(QResizeEvent* event)
{
    ScrollPage::resizeEvent(event);
    // A field as wide as a large screen looks meant for a letter.
    const int spare = viewport()->width() - widestSettings * fontMetrics().height();
    content().layout()->setContentsMargins(0, 0, std::max(0, spare), 0);
}

void SettingsPage::showHistoryMessage(const QString& line)
{
    // Otherwise it was asked for on another page, which says so.
    if (isVisible())
        m_history->showMessage(line);
}

} // namespace quindle

#include "moc_SettingsPage.cpp"
