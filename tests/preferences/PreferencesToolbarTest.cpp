#include "preferences/window/PreferencesToolbar.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QPixmap>
#include <QToolButton>
#include <QToolTip>
#include <gtest/gtest.h>

#include "tests/preferences/TestPane.h"
#include "tests/support/QtPrinters.h"
#include "widgets/controls/SegmentedControl.h"

using namespace quindle;

namespace {

class PreferencesToolbarTest : public testing::Test
{
protected:
    test::TestPane general{QStringLiteral("General")};
    test::TestPane update{QStringLiteral("Update")};
    PreferencesPanes panes{&general, &update};
    PreferencesToolbarFlags flags;
    QWidget window;

    std::unique_ptr<PreferencesToolbar> toolbar()
    {
        std::vector<ToolbarItem> items;
        for (const QString& identifier : toolbarItemIdentifiers(panes, flags))
            items.push_back(*toolbarItem(panes, identifier));
        const QStringList titles{QStringLiteral("General"), QStringLiteral("Update")};
        return std::make_unique<PreferencesToolbar>(*toolbarConfiguration(panes, flags), items, titles,
                                                    &window);
    }

    static QString identifiers(const QToolBar& toolbar)
    {
        QStringList names;
        for (const QAction* action : toolbar.actions())
            names.append(action->objectName());
        return names.join(QLatin1Char(','));
    }

    static QIcon maskIcon()
    {
        QPixmap pixmap(24, 24);
        pixmap.fill(Qt::black);
        QIcon icon(pixmap);
        icon.setIsMask(true);
        return icon;
    }
};

TEST_F(PreferencesToolbarTest, HasAnItemForEachPane)
{
    general.toolTip = QStringLiteral("Everyday settings");
    const auto bar = toolbar();
    EXPECT_EQ(bar->objectName(), QStringLiteral("PreferencesMainToolbar"));
    EXPECT_EQ(identifiers(*bar), QStringLiteral("general,update"));
    EXPECT_EQ(bar->segmentedControl(), nullptr);
    EXPECT_EQ(bar->actions().at(0)->text(), QStringLiteral("&General"));
    EXPECT_EQ(bar->actions().at(0)->iconText(), QStringLiteral("General"));
    EXPECT_EQ(bar->actions().at(0)->toolTip(), QStringLiteral("Everyday settings"));
    EXPECT_TRUE(bar->allowsUserCustomization());
    EXPECT_TRUE(bar->autosavesConfiguration());
    EXPECT_NE(bar->contextMenuPolicy(), Qt::PreventContextMenu);
    EXPECT_EQ(bar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
}

TEST_F(PreferencesToolbarTest, APaneWithoutAToolTipShowsNone)
{
    update.toolTip = QStringLiteral("Once a day");
    const auto bar = toolbar();
    const auto shown = [&bar](int item) {
        QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
        QApplication::sendEvent(bar->widgetForAction(bar->actions().at(item)), &event);
        return QToolTip::text();
    };
    EXPECT_EQ(shown(0), QString());
    EXPECT_EQ(shown(1), QStringLiteral("Once a day"));
    QToolTip::hideText();
}

TEST_F(PreferencesToolbarTest, OrHasTheSegmentedControl)
{
    flags.showToolbarItemsAsSegmentedControl = true;
    flags.centerToolbarItems = true;
    const auto bar = toolbar();
    EXPECT_EQ(identifiers(*bar),
              QStringLiteral("FlexibleSpace,PreferencesToolbarSegmentedControl,FlexibleSpace"));
    ASSERT_NE(bar->segmentedControl(), nullptr);
    EXPECT_EQ(bar->segmentedControl()->segmentCount(), 2);
    EXPECT_EQ(bar->segmentedControl()->objectName(), QStringLiteral("PreferencesToolbarSegmentedControl"));
    EXPECT_FALSE(bar->allowsUserCustomization());
    EXPECT_FALSE(bar->autosavesConfiguration());
    EXPECT_EQ(bar->contextMenuPolicy(), Qt::PreventContextMenu);
    EXPECT_EQ(bar->toolButtonStyle(), Qt::ToolButtonIconOnly);
}

TEST_F(PreferencesToolbarTest, CentresItsItems)
{
    for (const bool segmented : {false, true}) {
        flags.showToolbarItemsAsSegmentedControl = segmented;
        flags.centerToolbarItems = true;
        const auto bar = toolbar();
        window.resize(800, 200);
        window.show();
        bar->show();
        bar->resize(800, bar->sizeHint().height());
        QApplication::processEvents();
        const QList<QAction*> actions = bar->actions();
        const int left = bar->widgetForAction(actions.at(1))->geometry().left();
        const int right = 800 - bar->widgetForAction(actions.at(actions.size() - 2))->geometry().right() - 1;
        EXPECT_NEAR(left, right, 2) << segmented;
    }
}

TEST_F(PreferencesToolbarTest, SelectsWithoutActing)
{
    const auto bar = toolbar();
    QStringList clicked;
    QObject::connect(bar.get(), &PreferencesToolbar::itemClicked,
                     [&clicked](const QString& identifier) { clicked.append(identifier); });
    EXPECT_EQ(bar->selectedItemIdentifier(), QString());
    bar->setSelectedItemIdentifier(QStringLiteral("update"));
    EXPECT_EQ(bar->selectedItemIdentifier(), QStringLiteral("update"));
    EXPECT_TRUE(clicked.isEmpty());
    bar->actions().at(0)->trigger();
    EXPECT_EQ(clicked, QStringList(QStringLiteral("general")));
    EXPECT_EQ(bar->selectedItemIdentifier(), QStringLiteral("general"));
}

TEST_F(PreferencesToolbarTest, CanBeReachedByKeyboard)
{
    const auto bar = toolbar();
    for (QAction* action : bar->actions()) {
        EXPECT_EQ(bar->widgetForAction(action)->focusPolicy(), Qt::StrongFocus);
        EXPECT_FALSE(action->shortcut().isEmpty());
        const auto* item = QAccessible::queryAccessibleInterface(bar->widgetForAction(action));
        EXPECT_EQ(item->text(QAccessible::Name), action->iconText());
    }
    EXPECT_EQ(bar->actions().at(1)->shortcut(), QKeySequence(Qt::ALT | Qt::Key_U));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(bar.get())->role(), QAccessible::ToolBar);
}

TEST_F(PreferencesToolbarTest, MasksTakeTheTextsColour)
{
    general.icon = maskIcon();
    const auto bar = toolbar();
    QPalette palette = bar->palette();
    for (const QColor& ink : {QColor(0xec, 0xee, 0xf0), QColor(0x1d, 0x20, 0x26)}) {
        palette.setColor(QPalette::WindowText, ink);
        bar->setPalette(palette);
        const QImage picture = bar->actions().at(0)->icon().pixmap(24, 24).toImage();
        ASSERT_FALSE(picture.isNull());
        EXPECT_EQ(picture.pixelColor(picture.rect().center()), ink);
    }
}

TEST_F(PreferencesToolbarTest, OtherIconsKeepTheirColours)
{
    QPixmap pixmap(24, 24);
    pixmap.fill(QColor(0xe0, 0x40, 0x20));
    general.icon = QIcon(pixmap);
    const auto bar = toolbar();
    const QImage picture = bar->actions().at(0)->icon().pixmap(24, 24).toImage();
    EXPECT_EQ(picture.pixelColor(12, 12), QColor(0xe0, 0x40, 0x20));
}

TEST_F(PreferencesToolbarTest, DrawsTheSeparatorWhenWanted)
{
    const auto lowestLine = [this](bool separator) {
        flags.showToolbarSeparator = separator;
        const auto bar = toolbar();
        const QImage picture = bar->grab().toImage();
        return picture.pixelColor(2, picture.height() - 1) != picture.pixelColor(2, picture.height() - 3);
    };
    EXPECT_TRUE(lowestLine(true));
    EXPECT_FALSE(lowestLine(false));
}

TEST_F(PreferencesToolbarTest, LetsTheContentsColourThrough)
{
    QPalette palette(QColor(0xef, 0xf0, 0xf1));
    palette.setColor(QPalette::Base, QColor(0xfc, 0xfc, 0xfc));
    window.setPalette(palette);
    const auto bar = toolbar();
    EXPECT_EQ(bar->grab().toImage().pixelColor(1, 1), QColor(0xef, 0xf0, 0xf1));
    bar->setTransparent(true);
    EXPECT_EQ(bar->grab().toImage().pixelColor(1, 1), QColor(0xfc, 0xfc, 0xfc));
}

} // namespace
