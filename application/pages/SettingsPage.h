#pragma once

#include "application/pages/ScrollPage.h"

namespace quindle {

class GeneralPreferencesController;

/// The page "Settings": the pane of the helper's everyday settings.
class SettingsPage : public ScrollPage
{
    Q_OBJECT

public:
    /// `general` must outlive it.
    explicit SettingsPage(GeneralPreferencesController& general, QWidget* parent = nullptr);
    ~SettingsPage() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    GeneralPreferencesController& m_general;
};

} // namespace quindle
