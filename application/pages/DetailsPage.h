#pragma once

#include <vector>

#include <QWidget>

#include "application/pages/DetailSections.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QTreeWidget;

namespace quindle {

class Bundle;
class IORegistry;
class QDMac;
struct Platform;

/// The page "Details": every value that the computer reports, by section, with a field to search them; copied
/// as text, or saved as a machine file.
class DetailsPage : public QWidget
{
    Q_OBJECT

public:
    /// All must outlive it. `helperBundle` is what a machine file names as the bundle, `registryAsItIs` what
    /// it holds; null for that of `platform`.
    DetailsPage(const Platform& platform, const QDMac& mac, Bundle& helperBundle, IORegistry* registryAsItIs,
                QWidget* parent = nullptr);

    /// Shows the present values; for every refresh of the models. Does nothing while the page is not seen.
    void refresh();

    /// Copies what is found, as text.
    void copy();

    /// Saves this computer as a machine file, with its serial numbers only where they were asked for. Says
    /// on the page whether it could be written.
    void saveTo(const QString& path);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void search();
    void showFound();
    void showSection(int index, const DetailSection& section);
    void askForFile();
    void fitToFont();

    const Platform& m_platform;
    const QDMac& m_mac;
    Bundle& m_helperBundle;
    IORegistry* m_registryAsItIs;
    QLineEdit* m_search;
    QTreeWidget* m_rows;
    QLabel* m_nothing;
    QLabel* m_message;
    QCheckBox* m_withSerials;
    std::vector<DetailSection> m_sections;
};

} // namespace quindle
