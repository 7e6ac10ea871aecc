#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include <QDir>
#include <QPushButton>
#include <QXmlStreamReader>

#include "preferences/panes/SettingsBinder.h"
#include "tests/preferences/SettingsFixture.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

// A widget for every bound one of an interface file, with the same dynamic properties.
void addBoundWidgets(const QString& path, QWidget& root)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QStringLiteral("property"))
            continue;
        const QByteArray name = xml.attributes().value(QStringLiteral("name")).toUtf8();
        if (!name.endsWith("Path") && !name.endsWith("Pattern"))
            continue;
        xml.readNextStartElement();
        (new QPushButton(&root))->setProperty(name.constData(), xml.readElementText());
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString();
}

TEST(InterfaceFilesTest, EveryBoundKeyPathIsASetting)
{
    test::SettingsFixture on;
    const QDir folder(QStringLiteral(QUINDLE_PREFERENCES_FOLDER));
    const QStringList files = folder.entryList({QStringLiteral("*.ui")});
    EXPECT_TRUE(files.contains(QStringLiteral("GeneralPreferencesController.ui")));
    for (const QString& file : files) {
        QWidget root;
        addBoundWidgets(folder.filePath(file), root);
        const SettingsBinder binder(root, on.settings);
        EXPECT_EQ(binder.unresolved().join(u' '), QString()) << file.toStdString();
    }
}

} // namespace
