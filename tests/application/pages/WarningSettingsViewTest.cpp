#include "application/pages/WarningSettingsView.h"

#include <memory>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSpinBox>
#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"
#include "tests/support/FakeWarningServices.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"
#include "widgets/controls/BoundControls.h"

using namespace quindle;

namespace {

struct WarningSettingsViewTest : testing::Test
{
    void show()
    {
        view = std::make_unique<WarningSettingsView>(own, center, &managers);
        view->refresh();
        view->show();
    }

    template <typename Control>
    Control* named(const char* name)
    {
        for (Control* control : view->findChildren<Control*>())
            if (control->accessibleName() == latin(name) ||
                control->property("text").toString() == latin(name))
                return control;
        return nullptr;
    }

    bool says(const char* text)
    {
        for (const QLabel* label : view->findChildren<QLabel*>())
            if (label->text() == latin(text))
                return true;
        return false;
    }

    void choose(int index)
    {
        auto* choice = named<QComboBox>("Warn");
        choice->setCurrentIndex(index);
        Q_EMIT choice->activated(index);
    }

    MemoryUserDefaults own;
    FakeDistributedNotificationCenter center;
    FakePowerManagers managers;
    std::unique_ptr<WarningSettingsView> view;
};

TEST_F(WarningSettingsViewTest, ShowsWhatIsStoredAndStoresNothingByThat)
{
    own.values = {{latin("warnings"), latin("off")},
                  {latin("warnVeryLow"), false},
                  {latin("warnLowPercent"), qint64{35}},
                  {latin("warnFullCommand"), latin("tell")}};
    show();
    EXPECT_EQ(named<QComboBox>("Warn")->currentText(), latin("Never"));
    EXPECT_TRUE(named<BoundCheckBox>("Battery low")->isChecked());
    EXPECT_FALSE(named<BoundCheckBox>("Very low")->isChecked());
    EXPECT_EQ(named<QSpinBox>("Percentage for battery low")->value(), 35);
    EXPECT_EQ(named<QSpinBox>("Percentage for nearly empty")->text(), latin("5%"));
    EXPECT_EQ(named<QSpinBox>("Percentage for the charge limit")->text(), latin("Auto"));
    EXPECT_EQ(named<QLineEdit>("Command for full")->text(), latin("tell"));
    view->refresh();
    EXPECT_EQ(own.writes, QStringList());
    EXPECT_EQ(center.posted, QStringList());
}

TEST_F(WarningSettingsViewTest, PercentagesHaveTheDigitsOfTheTitleInEveryLocale)
{
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    show();
    EXPECT_EQ(named<QSpinBox>("Percentage for nearly empty")->text(), latin("5%"));
    QLocale::setDefault(QLocale::c());
}

TEST_F(WarningSettingsViewTest, SaysWhoElseWarns)
{
    show();
    managers.answer(latin("Xfce"));
    EXPECT_TRUE(says("Xfce's power manager warns on this desktop."));
    view->refresh();
    managers.answer();
    EXPECT_TRUE(says("No power manager warns on this desktop."));
    view->refresh();
    view.reset();
    managers.answer(latin("Xfce"));
}

TEST_F(WarningSettingsViewTest, StoresAndAnnouncesEachChange)
{
    show();
    choose(1);
    named<BoundCheckBox>("Nearly empty")->click();
    named<QSpinBox>("Percentage for very low")->stepDown();
    auto* command = named<QLineEdit>("Command for battery low");
    command->setText(latin("tell me"));
    Q_EMIT command->returnPressed();
    EXPECT_EQ(own.values, QVariantMap({{latin("warnings"), latin("on")},
                                       {latin("warnNearlyEmpty"), false},
                                       {latin("warnVeryLowPercent"), qint64{9}},
                                       {latin("warnLowCommand"), latin("tell me")}}));
    EXPECT_EQ(center.posted, QStringList(4, latin("SettingsChangedNotification")));
    choose(0);
    EXPECT_EQ(warningsChoice(own), WarningsChoice::Automatic);
}

TEST_F(WarningSettingsViewTest, EveryControlHasAName)
{
    show();
    for (const QWidget* control : view->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        EXPECT_FALSE(control->accessibleName().isEmpty() && control->property("text").toString().isEmpty() &&
                     !qobject_cast<const QLabel*>(control))
            << control->metaObject()->className();
}

} // namespace
