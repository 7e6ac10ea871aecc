#pragma once

#include <array>

#include "preferences/panes/PaneView.h"
#include "settings/WarningSettings.h"

class QComboBox;
class QGridLayout;
class QSpinBox;

namespace quindle {

class BoundCheckBox;
class BoundLineEdit;
class DistributedNotificationCenter;
class PowerManagers;
class QuietLabel;
class UserDefaults;

/// Whether the helper warns of the battery's charge, at which levels, and what else it does then.
class WarningSettingsView : public PaneView
{
    Q_OBJECT

public:
    /// `own` is the helper's own database; it and `center`, where each change is announced to the helper that
    /// warns, must outlive it. So must `powerManagers`; null where none can be asked for.
    WarningSettingsView(UserDefaults& own, DistributedNotificationCenter& center,
                        PowerManagers* powerManagers, QWidget* parent = nullptr);

    /// Shows the settings as they are stored, and asks which other program warns.
    void refresh();

    /// The settings alone, as when another process has changed them.
    void showLevels();

private:
    struct Row
    {
        BoundCheckBox* isOn;
        QSpinBox* percent;
        BoundLineEdit* command;
    };

    void addRows();
    void addLevel(WarningLevel level, QGridLayout& grid);
    QSpinBox* percentOf(WarningLevel level);
    void connectRow(WarningLevel level);
    void explain(const QString& desktop);
    void announceChange();

    UserDefaults& m_own;
    DistributedNotificationCenter& m_center;
    PowerManagers* m_powerManagers;
    QComboBox* m_choice;
    QuietLabel* m_explanation;
    std::array<Row, warningLevels.size()> m_rows{};
};

} // namespace quindle
