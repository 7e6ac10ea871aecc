#include "preferences/panes/MenuBarPreferencesController.h"

#include <QBuffer>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <gtest/gtest.h>

#include "preferences/panes/SettingsBinder.h"
#include "tests/preferences/MenuBarFixture.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"
#include "widgets/controls/RadioMatrix.h"

namespace quindle {

namespace {

class MenuBarPaneTest : public testing::Test, protected test::SettingsFixture
{
protected:
    RadioMatrix& matrix() { return *pane.view().findChild<RadioMatrix*>(latin("presentationMatrix")); }
    QString shownTitle() { return pane.view().findChild<QLabel*>(latin("shownTitle"))->text(); }

    test::LoggingTitle title{*this};
    int opened = 0;
    MenuBarPreferencesController pane{settings, title, [this] { ++opened; }};
};

} // namespace

TEST_F(MenuBarPaneTest, hasTheNamesOfASecondPane)
{
    EXPECT_EQ(pane.preferencesIdentifier(), latin("MenuBar"));
    EXPECT_EQ(pane.preferencesTitle(), latin("Menu Bar"));
    EXPECT_EQ(pane.initialFirstResponder()->objectName(), latin("menuBarTextButton"));
}

TEST_F(MenuBarPaneTest, everyKeyPathResolves)
{
    const SettingsBinder binder(pane.view(), settings);
    EXPECT_EQ(binder.unresolved(), QStringList());
    EXPECT_EQ(binder.paths(), (QStringList{latin("customStatusBar"), latin("statusItemPresentation")}));
}

TEST_F(MenuBarPaneTest, buttonOpensTheWindowOfTheText)
{
    pane.view().findChild<QPushButton*>(latin("menuBarTextButton"))->click();
    EXPECT_EQ(opened, 1);
}

TEST_F(MenuBarPaneTest, showsTheTitleOfTheStoredTemplate)
{
    suite()[latin("customStatusBar")] = latin("%l");
    EXPECT_EQ(shownTitle(), latin("293"));
    settings.setCustomStatusBar(latin("%p%"));
    EXPECT_EQ(shownTitle(), latin("66.7%"));
    title.values->stateOfCharge = 12;
    pane.refresh();
    EXPECT_EQ(shownTitle(), latin("12.0%"));
}

TEST_F(MenuBarPaneTest, showsWhatThePanelShows)
{
    using Form = ShownItem::Form;
    const std::pair<ShownItem, QString> cases[]{
        {{Form::Text, latin("66.7% 3:42")}, latin("66.7% 3:42")},
        {{Form::Number, latin("67")}, latin("the number 67")},
        {{Form::Icon}, latin("the icon alone")},
        {{Form::Nowhere}, latin("nothing, without a panel")},
    };
    pane.view();
    for (const auto& [shown, text] : cases) {
        title.shown = shown;
        pane.refresh();
        EXPECT_EQ(shownTitle(), text);
    }
}

TEST_F(MenuBarPaneTest, drawsThePanelsPictureInTheColourOfTheText)
{
    QImage picture(44, 44, QImage::Format_ARGB32);
    picture.fill(Qt::black);
    QByteArray png;
    QBuffer file(&png);
    file.open(QIODevice::WriteOnly);
    picture.save(&file, "PNG");
    title.shown = ShownItem{ShownItem::Form::Number, latin("67"), png};
    QWidget& preview = *pane.view().findChild<QWidget*>(latin("titlePreview"));
    QPalette palette = preview.palette();
    palette.setColor(QPalette::WindowText, Qt::red);
    preview.setPalette(palette);
    pane.refresh();
    preview.resize(400, 40);
    preview.layout()->activate();
    const QImage seen = preview.grab().toImage();
    int red = 0;
    for (int x = 0; x < seen.width(); ++x)
        red += seen.pixelColor(x, seen.height() / 2) == QColor(Qt::red) ? 1 : 0;
    EXPECT_GE(red, preview.fontMetrics().height() - 2);
}

TEST_F(MenuBarPaneTest, titleWithoutABatteryIsSaidInWords)
{
    title.values.reset();
    EXPECT_FALSE(shownTitle().isEmpty());
}

TEST_F(MenuBarPaneTest, choosingAFormStoresItAndRefreshesTheItem)
{
    const QStringList stored{latin(""), latin("label"), latin("wide"), latin("icon")};
    ASSERT_EQ(matrix().cells().size(), stored.size());
    for (const int row : {3, 2, 1, 0}) {
        title.calls.clear();
        matrix().findChildren<QAbstractButton*>().at(row)->click();
        EXPECT_EQ(title.calls, QStringList(latin("title")));
        EXPECT_EQ(title.standardThen.value(latin("statusItemPresentation")), QVariant(stored[row]));
    }
    EXPECT_TRUE(suite().isEmpty());
    EXPECT_TRUE(computer.distributedNotificationCenter.posted.isEmpty());
}

TEST_F(MenuBarPaneTest, showsTheStoredForm)
{
    standard()[latin("statusItemPresentation")] = latin("wide");
    EXPECT_EQ(matrix().selectedTag(), 2);
    settings.setStatusItemPresentation(3);
    EXPECT_EQ(matrix().selectedTag(), 3);
    standard()[latin("statusItemPresentation")] = latin("label"); // by another program
    pane.viewWillAppear();
    EXPECT_EQ(matrix().selectedTag(), 1);
    EXPECT_TRUE(title.calls.isEmpty());
}

} // namespace quindle
