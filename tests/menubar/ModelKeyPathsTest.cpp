#include <gtest/gtest.h>

#include "battery/QDBattery.h"
#include "mac/QDMac.h"
#include "menubar/BatteryView.h"
#include "menubar/KeyPathBinder.h"
#include "menubar/MainInterface.h"
#include "menubar/NoBatteryView.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

bool isThere(const QString& path)
{
    const bool ofBattery = path.startsWith(QStringLiteral("Battery."));
    const QMetaObject& model = ofBattery ? QDBattery::staticMetaObject : QDMac::staticMetaObject;
    return model.indexOfProperty(path.section(u'.', -1).toUtf8().constData()) >= 0;
}

// Every key path of the interface files is a property of the models that the program runs with.
TEST(ModelKeyPaths, OfBothViews)
{
    MainInterface interface;
    BatteryView view(interface);
    NoBatteryView noBatteryView;
    for (QWidget* widget : {static_cast<QWidget*>(&view), static_cast<QWidget*>(&noBatteryView)}) {
        const KeyPathBinder binder(*widget, interface.macObjectController());
        EXPECT_FALSE(binder.paths().isEmpty());
        for (const QString& path : binder.paths())
            EXPECT_TRUE(isThere(path)) << path.toStdString();
    }
}

TEST(ModelKeyPaths, Clicks)
{
    for (const char* method : {"toggleAge()", "toggleTemperatureMode()"})
        EXPECT_GE(QDBattery::staticMetaObject.indexOfMethod(method), 0) << method;
    EXPECT_GE(QDMac::staticMetaObject.indexOfMethod("toggleAge()"), 0);
}

} // namespace
