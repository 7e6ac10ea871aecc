// Renders the window of the menu bar text, or the pane that leads there: MenuBarTextShot CASE FILE.png
// CASE: words joined by "-" of pane, light, dark, rtl, long, huge, custom, popover, none

#include <QApplication>
#include <QPushButton>
#include <QStyleFactory>
#include <QTranslator>

#include "preferences/HelperPreferences.h"
#include "preferences/HelperPreferencesWindow.h"
#include "preferences/MenuBarPreferencesController.h"
#include "preferences/ParameterPopover.h"
#include "tests/menubar/Palettes.h"
#include "tests/preferences/SettingsFixture.h"

using namespace quindle;

namespace {

/// Every text half as long again, as in German.
class LongerTexts : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char*, const char* source, const char*, int) const override
    {
        QString text = QString::fromUtf8(source);
        const QString plain = QString(text).remove(u'&');
        return text + u' ' + plain.left(plain.size() / 2).trimmed();
    }
};

void setLook(const QStringList& words)
{
    const bool dark = words.contains(QStringLiteral("dark"));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette palette = dark ? test::darkPalette() : test::lightPalette();
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, Qt::gray);
    QApplication::setPalette(palette);
    if (words.contains(QStringLiteral("rtl")))
        QApplication::setLayoutDirection(Qt::RightToLeft);
    if (!words.contains(QStringLiteral("huge")))
        return;
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * 2);
    QApplication::setFont(font);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList words = QString::fromLocal8Bit(argv[1]).split(u'-');
    setLook(words);
    LongerTexts longer;
    if (words.contains(QStringLiteral("long")))
        QCoreApplication::installTranslator(&longer);

    test::SettingsFixture fixture;
    test::FixedTitle title;
    if (words.contains(QStringLiteral("none")))
        title.values.reset();
    fixture.settings.setShowsIconsInMenuBar(true);
    if (words.contains(QStringLiteral("custom"))) {
        fixture.settings.setMenuBarSetting(1);
        fixture.settings.setCustomStatusBar(QStringLiteral("%p% %s %r"));
    }
    const auto helper = HelperPreferences::initWithWindow(nullptr, fixture.settings, title);
    MenuBarPreferencesController pane(fixture.settings, title, [&helper] { helper->showWindow(); });
    QWidget* shown = &pane.view();
    if (words.contains(QStringLiteral("pane"))) {
        shown->resize(shown->sizeHint().width(), shown->heightForWidth(shown->sizeHint().width()));
        shown->show();
    } else {
        helper->showWindow();
        shown = &helper->window();
    }
    if (words.contains(QStringLiteral("popover"))) {
        shown->findChild<QPushButton*>(QStringLiteral("parametersButton"))->click();
        shown = helper->outlets().parameterPopover;
    }
    QApplication::processEvents();
    return shown->grab().save(QString::fromLocal8Bit(argv[2])) ? 0 : 1;
}
