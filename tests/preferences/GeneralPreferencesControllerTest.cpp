#include "preferences/panes/GeneralPreferencesController.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "preferences/panes/ParameterPopover.h"
#include "tests/preferences/Input.h"
#include "tests/preferences/SettingsFixture.h"
#include "tests/support/QtPrinters.h"
#include "widgets/controls/BoundControls.h"
#include "widgets/controls/RadioMatrix.h"

using namespace quindle;

namespace {

/// A pane on the invented computer.
struct Pane
{
    explicit Pane(test::SettingsFixture& on, test::FixedTitle& title)
        : controller(on.settings, title, on.computer.distributedNotificationCenter, on.computer.bundle,
                     [] { return QString(); })
    {
        controller.viewWillAppear();
        test::showActive(controller.view());
    }

    template <class Widget>
    Widget& find(QLatin1StringView name)
    {
        return *controller.view().findChild<Widget*>(QString(name));
    }

    BoundLineEdit& field() { return find<BoundLineEdit>(QLatin1StringView("customMenuBarTextField")); }
    RadioMatrix& matrix() { return find<RadioMatrix>(QLatin1StringView("temperatureMatrix")); }
    QCheckBox& icons() { return find<QCheckBox>(QLatin1StringView("showIconsCheckbox")); }
    QCheckBox& upload() { return find<QCheckBox>(QLatin1StringView("autoUploadCheckbox")); }
    QCheckBox& login() { return find<QCheckBox>(QLatin1StringView("launchAtStartupCheckbox")); }
    QLabel& description() { return find<QLabel>(QLatin1StringView("launchAtStartupDescription")); }
    QWidget& warning() { return find<QWidget>(QLatin1StringView("launchAtStartupWarningImage")); }
    QPushButton& reset() { return find<QPushButton>(QLatin1StringView("resetButton")); }
    QString preview() { return find<QLabel>(QLatin1StringView("shownTitle")).text(); }

    GeneralPreferencesController controller;
};

struct GeneralPreferencesControllerTest : testing::Test, test::SettingsFixture
{
    Pane& open()
    {
        pane.emplace(*this, title);
        return *pane;
    }

    const QStringList& posted() const { return computer.distributedNotificationCenter.posted; }

    // Expects one announcement since the last call, and no other post.
    void expectAnnouncedOnce(const char* what)
    {
        EXPECT_EQ(posted(), QStringList{QStringLiteral("SettingsChangedNotification")}) << what;
        computer.distributedNotificationCenter.posted.clear();
    }

    QVariant stored(QLatin1StringView key) { return suite().value(key); }

    test::FixedTitle title;
    std::optional<Pane> pane;
};

TEST_F(GeneralPreferencesControllerTest, IsThePaneGeneral)
{
    const GeneralPreferencesController& controller = open().controller;
    EXPECT_EQ(controller.preferencesIdentifier(), QStringLiteral("General"));
    EXPECT_EQ(controller.preferencesTitle(), QStringLiteral("General"));
    EXPECT_EQ(controller.preferencesToolTip(), std::nullopt);
    EXPECT_EQ(pane->controller.initialFirstResponder(), &pane->field());
}

TEST_F(GeneralPreferencesControllerTest, ShowsTheStoredSettingsSilently)
{
    suite() = {{QStringLiteral("customStatusBar"), QStringLiteral("%w W")},
               {QStringLiteral("temperatureSettingIndex"), 2},
               {QStringLiteral("showIconsInMenuBar"), 1},
               {QStringLiteral("autoUpload"), true}};
    const QVariantMap before = suite();
    loginItems.urls = {QStringLiteral("file:///opt/Quindle.app/Contents/Resources/Quindle-Helper.app")};
    open();
    EXPECT_EQ(pane->field().text(), QStringLiteral("%w W"));
    EXPECT_EQ(pane->matrix().selectedTag(), 2);
    EXPECT_TRUE(pane->icons().isChecked());
    EXPECT_TRUE(pane->upload().isChecked());
    EXPECT_TRUE(pane->login().isChecked());
    EXPECT_EQ(suite(), before);
    EXPECT_TRUE(posted().isEmpty());
}

TEST_F(GeneralPreferencesControllerTest, ShowsDefaults)
{
    open();
    EXPECT_EQ(pane->field().text(), QStringLiteral("%p%"));
    EXPECT_EQ(pane->matrix().selectedTag(), 0);
    EXPECT_FALSE(pane->icons().isChecked());
    EXPECT_FALSE(pane->upload().isChecked());
    EXPECT_FALSE(pane->login().isChecked());
}

TEST_F(GeneralPreferencesControllerTest, AnUnknownUnitSelectsNoCell)
{
    suite() = {{QStringLiteral("temperatureSettingIndex"), 7}};
    open();
    EXPECT_EQ(pane->matrix().selectedTag(), -1);
    EXPECT_EQ(stored(QLatin1StringView("temperatureSettingIndex")), QVariant(7));
    EXPECT_TRUE(posted().isEmpty());
}

TEST_F(GeneralPreferencesControllerTest, StoresTheUnit)
{
    const auto cells = open().matrix().findChildren<QRadioButton*>();
    ASSERT_EQ(cells.size(), 3);
    for (const qint64 tag : {2, 1, 0}) {
        cells[tag]->click();
        EXPECT_EQ(stored(QLatin1StringView("temperatureSettingIndex")), QVariant(tag));
        expectAnnouncedOnce("unit");
    }
    cells[0]->click();
    expectAnnouncedOnce("the unit there is, chosen again");
    EXPECT_TRUE(standard().isEmpty());
}

TEST_F(GeneralPreferencesControllerTest, StoresTheTextAtReturn)
{
    open().field().setFocus();
    pane->field().selectAll();
    test::type(pane->field(), QStringLiteral("%l"));
    EXPECT_TRUE(posted().isEmpty());
    EXPECT_EQ(pane->preview(), QStringLiteral("293"));
    test::pressKey(pane->field(), Qt::Key_Return);
    EXPECT_EQ(stored(QLatin1StringView("customStatusBar")), QVariant(QStringLiteral("%l")));
    EXPECT_TRUE(standard().isEmpty()) << "the title's setting is another window's";
    expectAnnouncedOnce("return");
    pane->icons().setFocus();
    EXPECT_TRUE(posted().isEmpty());
}

TEST_F(GeneralPreferencesControllerTest, StoresTheTextWhenItIsLeft)
{
    open().field().setFocus();
    pane->field().end(false);
    test::type(pane->field(), QStringLiteral("!"));
    pane->icons().setFocus();
    EXPECT_EQ(stored(QLatin1StringView("customStatusBar")), QVariant(QStringLiteral("%p%!")));
    expectAnnouncedOnce("leaving");
    pane->field().setFocus();
    pane->icons().setFocus();
    EXPECT_TRUE(posted().isEmpty());
}

TEST_F(GeneralPreferencesControllerTest, ResetAnnouncesOnceAlsoWhileTyping)
{
    suite() = {{QStringLiteral("customStatusBar"), QStringLiteral("%w W")}};
    open().field().setFocus();
    test::type(pane->field(), QStringLiteral("x"));
    test::clickAt(pane->reset(), pane->reset().rect().center());
    EXPECT_EQ(pane->field().text(), QStringLiteral("%p%"));
    EXPECT_EQ(stored(QLatin1StringView("customStatusBar")), QVariant(QStringLiteral("%p%")));
    expectAnnouncedOnce("reset");
    pane->icons().setFocus();
    EXPECT_TRUE(posted().isEmpty());
    pane->reset().click();
    expectAnnouncedOnce("reset of the default");
}

TEST_F(GeneralPreferencesControllerTest, StoresTheIconsAsOneOrZero)
{
    open().icons().click();
    EXPECT_EQ(stored(QLatin1StringView("showIconsInMenuBar")), QVariant(qint64(1)));
    expectAnnouncedOnce("icons on");
    pane->icons().click();
    EXPECT_EQ(stored(QLatin1StringView("showIconsInMenuBar")), QVariant(qint64(0)));
    expectAnnouncedOnce("icons off");
}

TEST_F(GeneralPreferencesControllerTest, StoresTheUploadAsBoolean)
{
    open().upload().click();
    EXPECT_EQ(stored(QLatin1StringView("autoUpload")), QVariant(true));
    expectAnnouncedOnce("upload on");
    pane->upload().click();
    EXPECT_EQ(stored(QLatin1StringView("autoUpload")), QVariant(false));
    expectAnnouncedOnce("upload off");
    EXPECT_TRUE(standard().isEmpty());
}

TEST_F(GeneralPreferencesControllerTest, SwitchesTheLoginItemSilently)
{
    open().login().click();
    EXPECT_EQ(loginItems.switches, QStringList{QStringLiteral("com.fernhollow.Quindle-Helper on")});
    EXPECT_TRUE(pane->login().isChecked()) << "the system did not take it, and nobody looks";
    pane->login().click();
    EXPECT_EQ(loginItems.switches.last(), QStringLiteral("com.fernhollow.Quindle-Helper off"));
    EXPECT_TRUE(posted().isEmpty());
    EXPECT_TRUE(suite().isEmpty());
}

TEST_F(GeneralPreferencesControllerTest, ReopeningShowsTheListOfLoginItems)
{
    open().login().click();
    pane->controller.viewWillAppear();
    EXPECT_FALSE(pane->login().isChecked());
    loginItems.urls = {QStringLiteral("file:///opt/Quindle.app/Contents/Resources/Quindle-Helper.app")};
    pane->controller.viewWillAppear();
    EXPECT_TRUE(pane->login().isChecked());
}

TEST_F(GeneralPreferencesControllerTest, HelperOnlyRule)
{
    const struct
    {
        const char* path;
        bool helperOnly;
    } cases[] = {
        {"/usr/lib/Quindle Helper/Quindle.app/Contents/Resources/Quindle-Helper.app", true},
        {"/opt/Quindle.app/Contents/Resources/Quindle-Helper.app", false},
        {"/opt/Quindle.app", false},
        {"/usr/lib/quindle helper/Quindle.app", false},
        {"", false},
    };
    for (const auto& c : cases) {
        computer.bundle.bundlePath = QString::fromUtf8(c.path);
        open();
        EXPECT_EQ(pane->login().isEnabled(), !c.helperOnly) << c.path;
        EXPECT_EQ(pane->warning().isVisible(), c.helperOnly) << c.path;
        EXPECT_EQ(pane->description().isVisible(), c.helperOnly) << c.path;
        const QString message = c.helperOnly ? QStringLiteral("This option can only be disabled in main "
                                                              "application. Run it via \"Open Application\" "
                                                              "from the menu")
                                             : QString();
        EXPECT_EQ(pane->description().text(), message) << c.path;
    }
}

TEST_F(GeneralPreferencesControllerTest, ShowsAnnouncedChangesAtOnce)
{
    open();
    suite() = {{QStringLiteral("customStatusBar"), QStringLiteral("%l")},
               {QStringLiteral("temperatureSettingIndex"), 1},
               {QStringLiteral("showIconsInMenuBar"), 1},
               {QStringLiteral("autoUpload"), true}};
    settings.reload();
    EXPECT_EQ(pane->field().text(), QStringLiteral("%l"));
    EXPECT_EQ(pane->preview(), QStringLiteral("293"));
    EXPECT_EQ(pane->matrix().selectedTag(), 1);
    EXPECT_TRUE(pane->icons().isChecked());
    EXPECT_TRUE(pane->upload().isChecked());
    EXPECT_TRUE(posted().isEmpty());
}

TEST_F(GeneralPreferencesControllerTest, DoesNotWriteOverTyping)
{
    open().field().setFocus();
    pane->field().end(false);
    test::type(pane->field(), QStringLiteral("x"));
    suite() = {{QStringLiteral("customStatusBar"), QStringLiteral("%l")}};
    settings.reload();
    EXPECT_EQ(pane->field().text(), QStringLiteral("%p%x"));
    test::pressKey(pane->field(), Qt::Key_Return);
    EXPECT_EQ(stored(QLatin1StringView("customStatusBar")), QVariant(QStringLiteral("%p%x")));
    expectAnnouncedOnce("return");
}

TEST_F(GeneralPreferencesControllerTest, TwoPanesShowTheSame)
{
    open();
    Pane other(*this, title);
    other.icons().click();
    other.matrix().findChildren<QRadioButton*>()[1]->click();
    other.login().click();
    EXPECT_TRUE(pane->icons().isChecked());
    EXPECT_EQ(pane->matrix().selectedTag(), 1);
    EXPECT_TRUE(pane->login().isChecked());
}

TEST_F(GeneralPreferencesControllerTest, PreviewFollowsUnitAndRefresh)
{
    suite() = {{QStringLiteral("customStatusBar"), QStringLiteral("%t")}};
    open();
    EXPECT_EQ(pane->preview(), QStringLiteral("30.0"));
    title.values->temperature = 86;
    pane->matrix().findChildren<QRadioButton*>()[1]->click();
    EXPECT_EQ(pane->preview(), QStringLiteral("86.0"));
    title.values->temperature = 87.1;
    pane->controller.refresh();
    EXPECT_EQ(pane->preview(), QStringLiteral("87.1"));
}

TEST_F(GeneralPreferencesControllerTest, AnInsertedPlaceholderIsStoredOnce)
{
    open().field().setFocus();
    pane->field().setCursorPosition(0);
    pane->find<QPushButton>(QLatin1StringView("parametersButton")).click();
    auto& popover = pane->find<ParameterPopover>(QLatin1StringView("parameterPopover"));
    EXPECT_TRUE(popover.isVisible());
    test::pressKey(*popover.focusProxy(), Qt::Key_Return);
    EXPECT_EQ(stored(QLatin1StringView("customStatusBar")), QVariant(QStringLiteral("%t%p%")));
    expectAnnouncedOnce("insertion");
    popover.close();
    pane->field().setFocus();
    pane->icons().setFocus();
    EXPECT_TRUE(posted().isEmpty());
}

TEST_F(GeneralPreferencesControllerTest, IsNeverMadeFromAnArchive)
{
    EXPECT_DEATH(GeneralPreferencesController::initWithCoder(), "Method not implemented");
}

TEST(GeneralPreferencesWithoutSuiteTest, AnnouncesAndStoresNothing)
{
    test::SettingsFixture on(false);
    test::FixedTitle title;
    Pane pane(on, title);
    pane.icons().click();
    pane.field().setFocus();
    pane.field().end(false);
    test::type(pane.field(), QStringLiteral("x"));
    pane.icons().setFocus();
    pane.field().setFocus();
    pane.icons().setFocus();
    EXPECT_EQ(on.computer.distributedNotificationCenter.posted.size(), 2);
    EXPECT_TRUE(on.suite().isEmpty());
    pane.controller.viewWillAppear();
    EXPECT_FALSE(pane.icons().isChecked());
    EXPECT_EQ(pane.field().text(), QStringLiteral("%p%"));
}

} // namespace
