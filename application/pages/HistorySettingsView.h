#pragma once

#include <functional>

#include "preferences/panes/PaneView.h"

class QComboBox;
class QLabel;

namespace quindle {

class BoundCheckBox;
class DistributedNotificationCenter;
class QuietLabel;
class UserDefaults;

/// What is recorded, how long charge and power are kept, and deleting all of it.
class HistorySettingsView : public PaneView
{
    Q_OBJECT

public:
    /// `own` is the helper's own database; it and `center`, where each change is announced to the helper that
    /// records, must outlive it. `deleteAll` is called once the user has confirmed it.
    HistorySettingsView(UserDefaults& own, DistributedNotificationCenter& center,
                        std::function<void()> deleteAll, QWidget* parent = nullptr);

    /// Shows the settings as they are stored.
    void refresh();

    /// Adds a line to what is said of the deletion.
    void showMessage(const QString& line);
    void clearMessage();

private:
    void addRows();
    void showDays(qint64 days);
    void askToDelete();
    void announceChange();

    UserDefaults& m_own;
    DistributedNotificationCenter& m_center;
    std::function<void()> m_deleteAll;
    BoundCheckBox* m_record;
    QComboBox* m_days;
    QuietLabel* m_message;
};

} // namespace quindle
