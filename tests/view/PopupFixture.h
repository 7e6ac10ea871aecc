#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "menubar/MainInterface.h"
#include "platform/Workspace.h"
#include "tests/facts/FactComputer.h"
#include "view/BatteryPopup.h"
#include "view/FactRow.h"

namespace quindle::test {

class RecordingActions : public StatusMenuActions
{
public:
    void openApplication() override { calls.append(QStringLiteral("application")); }
    void openPreferences() override { calls.append(QStringLiteral("preferences")); }
    void openMenuBarText() override { calls.append(QStringLiteral("menu bar text")); }
    void quitApp() override { calls.append(QStringLiteral("quit")); }

    QStringList calls;
};

class InventedDesktop : public Application
{
public:
    void terminate() override {}
    void activateIgnoringOtherApplications() override {}
    bool showsTranslucentWindows() const override { return translucent; }

    bool translucent = false;
};

inline void press(QWidget* widget, Qt::Key key)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &up);
}

inline void pressMouse(QWidget* widget, const QPointF& at)
{
    QMouseEvent event(QEvent::MouseButtonPress, at, widget->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

/// A battery popup on an invented computer.
struct PopupFixture : testing::Test, FactComputer
{
    PopupFixture()
    {
        interface.setPowerSources(&platform.powerSources);
        interface.setActions(&actions);
        make();
    }

    /// Makes the computer anew from what has been changed of it.
    void make()
    {
        FactComputer::make();
        interface.macObjectController().addObject(mac.get());
    }

    ~PopupFixture() override
    {
        popup.close();
        deleteClosed();
    }

    static void deleteClosed() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    static QWidget* window()
    {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == QStringLiteral("batteryWindow"))
                return widget;
        }
        return nullptr;
    }

    QWidget* open()
    {
        popup.open();
        return window();
    }

    template <class Widget>
    Widget* find(const char* name)
    {
        return window()->findChild<Widget*>(QString::fromLatin1(name));
    }

    FactRow* row(FactId id)
    {
        for (FactRow* row : window()->findChildren<FactRow*>()) {
            if (row->fact().id == id && !row->fact().caption.isEmpty())
                return row;
        }
        return nullptr;
    }

    QString textOf(FactRow* row) { return row->caption() + u'|' + row->text(); }

    RecordingActions actions;
    MainInterface interface;
    InventedDesktop desktop;
    BatteryPopup popup{interface, desktop, platform.runLoop};
};

} // namespace quindle::test
