// Shows a status item with the given text as title and image until it is ended, or draws all icons into a
// file.

#include <iostream>

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QPainter>

#include "platform/Image.h"
#include "platform/StatusMenu.h"
#include "platform/linux/session/LinuxRunLoop.h"
#include "platform/linux/statusitem/LinuxStatusItem.h"
#include "tests/platform/linux/pictures/PictureImage.h"

namespace {

using namespace quindle;

void drawSheet(const QString& resources, const QString& file)
{
    const QStringList names{QStringLiteral("#bat04"),       QStringLiteral("#bat14"),
                            QStringLiteral("#bat24"),       QStringLiteral("#bat34"),
                            QStringLiteral("#bat44"),       QStringLiteral("#bat04Charge"),
                            QStringLiteral("#bat44Charge"), QStringLiteral("AppIconBW")};
    StatusPictures pictures(resources);
    QImage sheet(60 * 8, 4 * 150, QImage::Format_RGB32);
    QPainter painter(&sheet);
    int y = 0;
    for (const QColor& panel : {QColor(0x1e1e1e), QColor(0xf2f2f2), QColor(0x4a6a8a), QColor(0x909090)}) {
        painter.fillRect(0, y, sheet.width(), 150, panel);
        for (const int size : {16, 22, 24, 32, 44}) {
            for (int i = 0; i < names.size(); ++i)
                painter.drawImage(60 * i + 5, y + 2,
                                  imageOf(pictures.image({Picture::Kind::Icon, names[i], {}, 0}, size)));
            y += size + 2;
        }
        y += 150 - (16 + 22 + 24 + 32 + 44 + 10);
    }
    painter.end();
    sheet.save(file);
}

void fill(StatusMenu& menu, const QString& title)
{
    const auto say = [](const char* what) { return [what] { std::cout << what << std::endl; }; };
    menu.addRow({StatusMenu::Kind::Fact, title, true, true, {}});
    menu.addRow({StatusMenu::Kind::Fact, QStringLiteral("Health\t93.4%"), true, true, {}});
    menu.addRow({StatusMenu::Kind::OpenView, QStringLiteral("Show Battery..."), true, true, {}});
    menu.addRow({StatusMenu::Kind::Separator, {}, true, true, {}});
    menu.addRow({StatusMenu::Kind::Action, QStringLiteral("Snake_case & Co."), true, true, say("chosen")});
    menu.addRow({StatusMenu::Kind::Action, QStringLiteral("Disabled"), true, false, say("disabled")});
    menu.setViewOpener(say("view"));
    menu.setViewToggler(say("view"));
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    QCommandLineParser arguments;
    const QString resources = QStringLiteral(QUINDLE_RESOURCES);
    arguments.addOptions({
        {QStringLiteral("text"), {}, QStringLiteral("text"), QStringLiteral("87.0%")},
        {QStringLiteral("image"), {}, QStringLiteral("name")},
        {QStringLiteral("fallback"), {}, QStringLiteral("text"), QStringLiteral("87")},
        {QStringLiteral("tip"), {}, QStringLiteral("text"), QStringLiteral("Discharging, 3:21 left")},
        {QStringLiteral("choice"), {}, QStringLiteral("presentation"), QStringLiteral("auto")},
        {QStringLiteral("sheet"), {}, QStringLiteral("file")},
    });
    arguments.process(application);
    if (arguments.isSet(QStringLiteral("sheet"))) {
        drawSheet(resources, arguments.value(QStringLiteral("sheet")));
        return 0;
    }

    const QString choice = arguments.value(QStringLiteral("choice"));
    LinuxRunLoop runLoop;
    LinuxStatusBar bar(runLoop,
                       {resources, qEnvironmentVariable("XDG_CURRENT_DESKTOP"), [choice] { return choice; }});
    const auto item = bar.statusItemWithLength(variableStatusItemLength);
    const QString title = arguments.value(QStringLiteral("text"));
    StatusMenu menu;
    fill(menu, title);
    item->setTitle(title);
    item->setFallbackText(arguments.value(QStringLiteral("fallback")));
    item->setToolTipText(arguments.value(QStringLiteral("tip")));
    item->setMenu(&menu);
    if (arguments.isSet(QStringLiteral("image")))
        item->setImage(std::make_shared<Image>(arguments.value(QStringLiteral("image"))));
    return QGuiApplication::exec();
}
