// Renders the General pane with an invented battery: GeneralPaneShot CASE FILE.png
// CASE: words joined by "-" of light, dark, rtl, double (font of 200 %), german, helper, none, long, popover,
// sent; "stay" leaves it open

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFontInfo>
#include <QLineEdit>
#include <QStyleFactory>
#include <QTranslator>

#include "preferences/GeneralPreferencesController.h"
#include "preferences/ParameterPopover.h"
#include "tests/menubar/Palettes.h"
#include "tests/preferences/LongTexts.h"
#include "tests/preferences/SettingsFixture.h"

using namespace quindle;

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList words = QString::fromLocal8Bit(argv[1]).split(u'-');
    const auto has = [&words](QLatin1StringView word) { return words.contains(word); };
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(has(QLatin1StringView("dark")) ? test::darkPalette() : test::lightPalette());
    if (has(QLatin1StringView("rtl")))
        QApplication::setLayoutDirection(Qt::RightToLeft);
    if (has(QLatin1StringView("double"))) {
        QFont font = QApplication::font();
        font.setPointSizeF(QFontInfo(font).pointSizeF() * 2);
        QApplication::setFont(font);
    }
    test::LongTexts longTexts;
    if (has(QLatin1StringView("german")))
        QApplication::installTranslator(&longTexts);

    test::SettingsFixture on;
    test::FixedTitle title;
    on.suite() = {{QStringLiteral("customStatusBar"), QStringLiteral("%p% %s %r")},
                  {QStringLiteral("showIconsInMenuBar"), 1}};
    if (has(QLatin1StringView("long")))
        on.suite()[QStringLiteral("customStatusBar")] = QStringLiteral("%p% %s %r ").repeated(12);
    if (has(QLatin1StringView("helper")))
        on.computer.bundle.bundlePath.prepend(QStringLiteral("/usr/lib/Quindle Helper"));
    if (has(QLatin1StringView("none")))
        title.values.reset();

    GeneralPreferencesController pane(on.settings, title, on.computer.distributedNotificationCenter,
                                      on.computer.bundle, [] { return QStringLiteral("[{\"a\": 1}]"); });
    pane.viewWillAppear();
    pane.view().resize(pane.view().sizeHint());
    pane.view().show();
    QApplication::processEvents();
    QWidget* shown = &pane.view();
    if (has(QLatin1StringView("popover"))) {
        pane.showParameterPopover(pane.view());
        shown = shown->findChild<ParameterPopover*>();
    }
    if (has(QLatin1StringView("sent"))) {
        shown->findChild<QAbstractButton*>(QStringLiteral("sentDataButton"))->click();
        shown = shown->findChild<QDialog*>();
    }
    QApplication::processEvents();
    if (has(QLatin1StringView("stay")))
        QApplication::exec();
    return shown->grab().save(QString::fromLocal8Bit(argv[2])) ? 0 : 1;
}
