#pragma once

#include <array>
#include <functional>

#include "application/pages/ScrollPage.h"

namespace quindle {

class DistributedNotificationCenter;
class GeneralPreferencesController;
class HistorySettingsView;
class PaneView;
class PowerManagers;
class UserDefaults;
class WarningSettingsView;

/// The page "Settings": the pane of the helper's everyday settings, the warnings, and what is
/// recorded.
class SettingsPage : public ScrollPage
{
    Q_OBJECT

public:
    /// `own` is the helper's own database, `center` where changes are announced; both and `general` must
    /// outlive it, and so must `powerManagers`, which may be null. `deleteHistory` is called once the user
    /// has confirmed it.
    SettingsPage(GeneralPreferencesController& general, UserDefaults& own,
                 DistributedNotificationCenter& center, PowerManagers* powerManagers,
                 std::function<void()> deleteHistory, QWidget* parent = nullptr);
    ~SettingsPage() override;

    /// Shows a line about what became of the history, until the page is hidden.
    void showHistoryMessage(const QString& line);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    std::array<PaneView*, 3> panes() const;
    void alignCaptions();
    void showStored();

    GeneralPreferencesController& m_general;
    WarningSettingsView* m_warnings;
    HistorySettingsView* m_history;
};

} // namespace quindle
