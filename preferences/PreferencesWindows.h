#pragma once

#include <functional>
#include <memory>

#include <QString>

#include "preferences/PreferencesPresenter.h"

namespace quindle {

class ApplicationPreferences;
class StatusBarTitle;
struct InstallationSource;
struct Platform;

/// What the preferences need from the application that runs.
struct PreferencesSources
{
    StatusBarTitle& delegate;
    std::function<QString()> dailyUploadText; ///< as GeneralPreferencesController::SentText
    std::function<InstallationSource()> installationSource;
};

/// The helper's windows of settings: the preferences window with its three panes, and the small window with
/// the menu bar's text. Nothing is made, read or observed before one of them is shown for the first time.
class PreferencesWindows : public PreferencesPresenter
{
public:
    /// Both must outlive it.
    PreferencesWindows(const Platform& platform, ApplicationPreferences& preferences);
    ~PreferencesWindows() override;

    /// Says where texts and titles come from, before anything is shown.
    void setSources(const PreferencesSources& sources);

    void showPreferencesWindow() override;
    void showHelperPreferences() override;

    /// The status item was refreshed: previews and popovers show the values of this moment.
    void refresh();

private:
    struct Windows;

    Windows& windows();

    const Platform& m_platform;
    ApplicationPreferences& m_preferences;
    std::unique_ptr<PreferencesSources> m_sources;
    std::shared_ptr<Windows> m_windows;
};

} // namespace quindle
