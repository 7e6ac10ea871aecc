#pragma once

#include <functional>

#include "application/pages/ScrollPage.h"

namespace quindle {

class GeneralPreferencesController;
class HistorySettingsView;
class UserDefaults;

/// The page "Settings": the pane of the helper's everyday settings, and what is recorded.
class SettingsPage : public ScrollPage
{
    Q_OBJECT

public:
    /// `general` and `own`, the helper's own database, must outlive it. `deleteHistory` is called once the
    /// user has confirmed it.
    SettingsPage(GeneralPreferencesController& general, UserDefaults& own,
                 std::function<void()> deleteHistory, QWidget* parent = nullptr);
    ~SettingsPage() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    GeneralPreferencesController& m_general;
    HistorySettingsView* m_history;
};

} // namespace quindle
