#pragma once

#include <memory>

#include "preferences/PreferencesPresenter.h"

class QWidget;

namespace quindle {

/// The preferences window; made when it is first shown. It has no panes yet.
class PreferencesWindow : public PreferencesPresenter
{
public:
    PreferencesWindow();
    ~PreferencesWindow() override;

    void showPreferencesWindow() override;

private:
    std::unique_ptr<QWidget> m_window;
};

} // namespace quindle
