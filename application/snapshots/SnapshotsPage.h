#pragma once

#include <functional>
#include <optional>

#include <QVariant>
#include <QWidget>

class QLabel;
class QPushButton;

namespace quindle {

class LinkButton;
class LoadingBar;
class SavedSnapshots;
class SnapshotView;

/// The page "Snapshots": the records of the archive as a list, the newest first or in another order; they are
/// saved, deleted (with undo), compared, imported and exported.
class SnapshotsPage : public QWidget
{
    Q_OBJECT

public:
    /// The record of this moment; nothing without a battery.
    using MakeSnapshot = std::function<std::optional<QVariantMap>()>;

    /// `snapshots` must outlive it.
    SnapshotsPage(SavedSnapshots& snapshots, MakeSnapshot makeSnapshot, QWidget* parent = nullptr);

    /// Reads the archive again where it has changed; for every refresh of the models. Does nothing while the
    /// page is not seen.
    void refresh();

    /// Writes the records to a file, as JSON if its name ends in ".json", else as CSV.
    void exportTo(const QString& path, bool withSerialNumbers);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QPushButton* button(const QString& text, void (SnapshotsPage::*action)());
    void layOut();
    void connectSnapshots();
    void showRecords();
    void showBusy();
    void updateButtons();
    void saveNow();
    void deleteSelected();
    void undo();
    void compare();
    void askForImport();
    void askForExport();
    void showMessage(const QString& line);
    void fitToFont();

    SavedSnapshots& m_snapshots;
    MakeSnapshot m_makeSnapshot;
    // From the top of the page to the bottom: in the order in which they are made Tab goes through them.
    QLabel* m_count;
    LoadingBar* m_progress;
    QPushButton* m_save;
    SnapshotView* m_view;
    QLabel* m_nothing;
    QLabel* m_message;
    LinkButton* m_undo;
    QPushButton* m_compare;
    QPushButton* m_delete;
    QPushButton* m_import;
    QPushButton* m_export;
    QVariantList m_deleted;
};

} // namespace quindle
