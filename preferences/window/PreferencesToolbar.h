#pragma once

#include <QToolBar>

#include "preferences/window/PreferencesToolbarItems.h"

class QActionGroup;

namespace quindle {

class SegmentedControl;

/// The toolbar of a preferences window. Its object name and those of its actions are the identifiers. Its
/// context menu policy and the two properties say whether a user may customise it; a customised toolbar would
/// not be kept, as there is no interface to customise it with.
class PreferencesToolbar : public QToolBar
{
    Q_OBJECT
    Q_PROPERTY(bool allowsUserCustomization READ allowsUserCustomization CONSTANT)
    Q_PROPERTY(bool autosavesConfiguration READ autosavesConfiguration CONSTANT)

public:
    /// `segments` are the titles of the segmented control, if it is among the items.
    PreferencesToolbar(const ToolbarConfiguration& configuration, const std::vector<ToolbarItem>& items,
                       const QStringList& segments, QWidget* parent = nullptr);

    bool showsBaselineSeparator() const { return m_configuration.showsBaselineSeparator; }
    bool allowsUserCustomization() const { return m_configuration.allowsUserCustomization; }
    bool autosavesConfiguration() const { return m_configuration.autosavesConfiguration; }
    ToolbarDisplayMode displayMode() const { return m_configuration.displayMode; }

    /// Null when the panes have items of their own.
    SegmentedControl* segmentedControl() const { return m_segmentedControl; }

    /// Empty when none is selected.
    QString selectedItemIdentifier() const;

    /// Selects without acting.
    void setSelectedItemIdentifier(const QString& identifier);

    /// Lets the colour of the content through.
    void setTransparent(bool transparent);

Q_SIGNALS:
    void itemClicked(const QString& identifier);
    void segmentClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addItem(const ToolbarItem& item, const QStringList& segments);
    void addPane(const ToolbarItem& item);
    void addFlexibleSpace();
    void addSegments(const QStringList& segments);
    void addMnemonics();
    void drawIcons();
    void fitToFont();

    ToolbarConfiguration m_configuration;
    std::vector<ToolbarItem> m_items;
    QActionGroup* m_panes;
    SegmentedControl* m_segmentedControl = nullptr;
    bool m_isTransparent = false;
};

} // namespace quindle
