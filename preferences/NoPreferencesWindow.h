#pragma once

#include "preferences/PreferencesPresenter.h"

namespace quindle {

/// For programs that have no windows.
class NoPreferencesWindow : public PreferencesPresenter
{
public:
    void showPreferencesWindow() override {}
    void showHelperPreferences() override {}
};

} // namespace quindle
