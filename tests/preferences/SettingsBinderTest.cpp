#include "preferences/panes/SettingsBinder.h"

#include <gtest/gtest.h>

#include <QLabel>

#include "tests/preferences/SettingsFixture.h"
#include "tests/support/QtPrinters.h"
#include "widgets/controls/BoundControls.h"

using namespace quindle;

namespace {

struct SettingsBinderTest : testing::Test, test::SettingsFixture
{
    template <class Control>
    Control* add(const char* path, const char* property = nullptr)
    {
        auto* control = new Control(&root);
        control->setProperty("keyPath", QString::fromLatin1(path));
        if (property)
            control->setProperty("keyPathProperty", QString::fromLatin1(property));
        return control;
    }

    QWidget root;
};

TEST_F(SettingsBinderTest, ShowsASettingInTheUserPropertyOrTheNamedOne)
{
    settings.setAutoUpload(true);
    const auto* box = add<BoundCheckBox>("autoUpload");
    const auto* label = add<QLabel>("customStatusBar", "text");
    const SettingsBinder binder(root, settings);
    EXPECT_TRUE(box->isChecked());
    EXPECT_EQ(label->text(), QStringLiteral("%p%"));
    settings.setAutoUpload(false);
    settings.setCustomStatusBar(QStringLiteral("%w"));
    EXPECT_FALSE(box->isChecked());
    EXPECT_EQ(label->text(), QStringLiteral("%w"));
}

TEST_F(SettingsBinderTest, AControlKeepsWhatTheUserDidWhileItsSettingStaysAsItIs)
{
    auto* box = add<BoundCheckBox>("autoUpload");
    SettingsBinder binder(root, settings);
    box->setChecked(true); // and nobody could store it
    settings.setCustomStatusBar(QStringLiteral("%w"));
    EXPECT_TRUE(box->isChecked());
    binder.fill();
    EXPECT_FALSE(box->isChecked());
}

TEST_F(SettingsBinderTest, NamesWhatIsBoundAndWhatIsNoSetting)
{
    add<QLabel>("customStatusBar", "text");
    add<BoundCheckBox>("autoUpload");
    add<QLabel>("customStatusBar", "text");
    add<QLabel>("customStatusbar", "text");
    const SettingsBinder binder(root, settings);
    EXPECT_EQ(binder.paths(), (QStringList{QStringLiteral("autoUpload"), QStringLiteral("customStatusBar")}));
    EXPECT_EQ(binder.unresolved(), QStringList(QStringLiteral("customStatusbar")));
}

TEST_F(SettingsBinderTest, AControlMayGoEarlier)
{
    const auto* box = add<BoundCheckBox>("autoUpload");
    const SettingsBinder binder(root, settings);
    delete box;
    settings.setAutoUpload(true);
}

} // namespace
