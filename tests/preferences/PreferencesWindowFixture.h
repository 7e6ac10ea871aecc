#pragma once

#include <memory>

#include <QApplication>
#include <QRadioButton>
#include <gtest/gtest.h>

#include "preferences/window/PreferencesToolbar.h"
#include "preferences/window/QDPreferencesWindow.h"
#include "preferences/window/QDPreferencesWindowController.h"
#include "tests/preferences/TestPane.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"
#include "widgets/controls/SegmentedControl.h"

namespace quindle::test {

/// The preferences window with three panes.
class PreferencesWindowFixture : public testing::Test
{
protected:
    MemoryUserDefaults defaults;
    FakeApplication application;
    TestPane general{QStringLiteral("General"), QSize(500, 300)};
    TestPane menuBar{QStringLiteral("Menu Bar"), QSize(600, 200)};
    TestPane update{QStringLiteral("Update"), QSize(500, 150)};
    bool reducesMotion = true;
    bool placesWindows = true;
    std::unique_ptr<QDPreferencesWindowController> controller = makeController();

    std::unique_ptr<QDPreferencesWindowController> makeController()
    {
        auto made = std::make_unique<QDPreferencesWindowController>(
            defaults, application, PreferencesDesktop{placesWindows, [this] { return reducesMotion; }});
        made->setViewControllers({&general, &menuBar, &update});
        return made;
    }

    void show()
    {
        controller->showPreferencesWindow();
        QApplication::processEvents();
    }

    QDPreferencesWindow& window() const { return *controller->window(); }
    PreferencesToolbar* toolbar() const { return window().toolbar(); }
    SegmentedControl& segments() const { return *toolbar()->segmentedControl(); }

    void clickSegment(int tag) const
    {
        qobject_cast<QRadioButton*>(segments().segment(tag))->click();
        QApplication::processEvents();
    }

    void expectShown(TestPane& pane)
    {
        EXPECT_EQ(controller->shownViewController(), &pane);
        EXPECT_EQ(window().windowTitle(), pane.preferencesTitle());
        EXPECT_TRUE(pane.view().isVisible());
        EXPECT_TRUE(window().isAncestorOf(&pane.view()));
        for (TestPane* each : {&general, &menuBar, &update})
            EXPECT_EQ(each->view().parentWidget() != nullptr, each == &pane);
    }

    QString storedFrame() const
    {
        return defaults.values.value(QStringLiteral("PreferencesWindowFrameAutoSaveName")).toString();
    }
};

} // namespace quindle::test
