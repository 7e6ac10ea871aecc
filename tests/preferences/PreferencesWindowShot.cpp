// Renders the preferences window with a few panes: PreferencesWindowShot CASE FILE.png
// CASE: words joined by "-" of light, dark, items, update, rtl, large, keyboard; "stay" leaves it open

#include <QApplication>
#include <QStyleFactory>

#include "preferences/PreferencesToolbar.h"
#include "preferences/QDPreferencesWindow.h"
#include "preferences/QDPreferencesWindowController.h"
#include "preferences/SegmentedControl.h"
#include "preferences/UpdatePreferencesController.h"
#include "tests/menubar/Palettes.h"
#include "tests/preferences/TestPane.h"
#include "tests/support/FakePlatform.h"

using namespace quindle;

namespace {

/// The bundle of the build folder, which holds icons and version.
QString builtBundle()
{
    return QStringLiteral(QUINDLE_BUILT_BUNDLE);
}

QIcon iconNamed(const char* name)
{
    QIcon icon(builtBundle() + QStringLiteral("/Contents/Resources/icons/") + QString::fromLatin1(name));
    icon.setIsMask(true);
    return icon;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList words = QString::fromLocal8Bit(argv[1]).split(u'-');
    const auto has = [&words](const char* word) { return words.contains(QString::fromLatin1(word)); };
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(has("dark") ? test::darkPalette() : test::lightPalette());
    if (has("rtl"))
        QApplication::setLayoutDirection(Qt::RightToLeft);
    if (has("large")) {
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * 2);
        QApplication::setFont(font);
    }

    MemoryUserDefaults defaults;
    FakeApplication fakeApplication;
    FakeBundle bundle;
    bundle.bundlePath = builtBundle();
    bundle.info = QVariantMap{{QStringLiteral("CFBundleShortVersionString"), QStringLiteral("0.1.0")},
                              {QStringLiteral("CFBundleVersion"), QStringLiteral("1")}};
    test::TestPane general(QStringLiteral("General"), QSize(560, 300));
    test::TestPane menuBar(QStringLiteral("Menu Bar"), QSize(560, 300));
    general.icon = menuBar.icon = iconNamed("#bat34.svg");
    UpdatePreferencesController update(bundle, [] {
        return InstallationSource{InstallationSource::Kind::Package, QStringLiteral("apt"),
                                  QStringLiteral("quindle-helper")};
    });
    QDPreferencesWindowController controller(defaults, fakeApplication, {true, [] { return true; }});
    controller.setShowToolbarSeparator(true);
    controller.setCenterToolbarItems(true);
    controller.setShowToolbarItemsAsSegmentedControl(!has("items"));
    controller.setViewControllers({&general, &menuBar, &update});
    controller.showPreferencesWindow();
    QApplication::processEvents();
    if (has("update"))
        controller.toolbarItemAction(QStringLiteral("Update"));
    QDPreferencesWindow& window = *controller.window();
    if (SegmentedControl* segments = window.toolbar()->segmentedControl()) {
        segments->selectSegmentWithTag(has("update") ? 2 : 0);
        if (has("keyboard")) {
            window.setAttribute(Qt::WA_KeyboardFocusChange);
            segments->segment(segments->selectedTag())->setFocus(Qt::TabFocusReason);
        }
    } else {
        window.toolbar()->setSelectedItemIdentifier(has("update") ? QStringLiteral("Update")
                                                                  : QStringLiteral("general"));
    }
    QApplication::processEvents();
    const bool saved = window.grab().save(QString::fromLocal8Bit(argv[2]));
    if (has("stay"))
        QApplication::exec();
    return saved ? 0 : 1;
}
