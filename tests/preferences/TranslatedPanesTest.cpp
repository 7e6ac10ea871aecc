// Every pane and window of the preferences in a language that is longer than English.

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <gtest/gtest.h>

#include "preferences/panes/GeneralPreferencesController.h"
#include "preferences/panes/MenuBarPreferencesController.h"
#include "preferences/panes/ParameterPopover.h"
#include "preferences/panes/UpdatePreferencesController.h"
#include "preferences/window/QDPreferencesWindowController.h"
#include "tests/preferences/Input.h"
#include "tests/preferences/MenuBarFixture.h"
#include "tests/support/PseudoLanguage.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct InPseudoLanguageOfPanes
{
    test::PseudoLanguage language;
};

struct TranslatedPanesTest : testing::Test, InPseudoLanguageOfPanes, test::MenuBarFixture
{
    static void expectTranslatedAndWhole(QWidget& window)
    {
        test::showActive(window);
        QApplication::processEvents();
        // The toolkit's own word, which it translates itself.
        EXPECT_EQ(test::untranslatedTexts(window, {latin("Close")}), QStringList());
        EXPECT_EQ(test::cutTexts(window), QStringList());
    }

    void setInsideHelper() { computer.bundle.bundlePath = latin("/usr/lib/Quindle Helper/Quindle.app"); }

    GeneralPreferencesController general{settings, title, computer.distributedNotificationCenter,
                                         computer.bundle, [] { return QString(); }};
};

TEST_F(TranslatedPanesTest, General)
{
    general.viewWillAppear();
    expectTranslatedAndWhole(general.view());
    setInsideHelper();
    general.viewWillAppear();
    expectTranslatedAndWhole(general.view());
}

TEST_F(TranslatedPanesTest, WhatIsSent)
{
    general.viewWillAppear();
    test::showActive(general.view());
    general.view().findChild<QAbstractButton*>(latin("sentDataButton"))->click();
    auto* dialog = general.view().findChild<QDialog*>();
    ASSERT_TRUE(dialog);
    expectTranslatedAndWhole(*dialog);
}

TEST_F(TranslatedPanesTest, Parameters)
{
    general.viewWillAppear();
    test::showActive(general.view());
    general.view().findChild<QAbstractButton*>(latin("parametersButton"))->click();
    auto* popover = general.view().findChild<ParameterPopover*>();
    ASSERT_TRUE(popover);
    QApplication::processEvents();
    EXPECT_EQ(test::untranslatedTexts(*popover, {}), QStringList());
    EXPECT_EQ(test::cutTexts(*popover), QStringList());
}

TEST_F(TranslatedPanesTest, MenuBar)
{
    MenuBarPreferencesController pane(settings, title, [] {});
    expectTranslatedAndWhole(pane.view());
}

TEST_F(TranslatedPanesTest, MenuBarText)
{
    expectTranslatedAndWhole(helper->window());
}

TEST_F(TranslatedPanesTest, Updates)
{
    using Kind = InstallationSource::Kind;
    for (const Kind kind : {Kind::Package, Kind::Build, Kind::Elsewhere}) {
        UpdatePreferencesController pane(computer.bundle, [kind] {
            return InstallationSource{kind, latin("ap"), latin("qh")};
        });
        EXPECT_EQ(test::untranslatedPart(pane.preferencesTitle()), QString());
        expectTranslatedAndWhole(pane.view());
    }
}

TEST_F(TranslatedPanesTest, Window)
{
    MenuBarPreferencesController menuBar(settings, title, [] {});
    QDPreferencesWindowController window(computer.userDefaults.standardDefaults, computer.application);
    window.setShowToolbarItemsAsSegmentedControl(true);
    window.setCenterToolbarItems(true);
    window.setViewControllers({&general, &menuBar});
    window.showPreferencesWindow();
    for (QWidget* shown : QApplication::topLevelWidgets()) {
        if (shown->isVisible())
            expectTranslatedAndWhole(*shown);
    }
}

} // namespace
