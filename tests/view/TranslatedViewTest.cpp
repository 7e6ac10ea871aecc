// The battery view in a language that is longer than English.

#include <QLabel>
#include <gtest/gtest.h>

#include "tests/support/PseudoLanguage.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"
#include "tests/view/PopupFixture.h"

using namespace quindle;

namespace {

/// The models' and drivers' own words and names.
QStringList namesOfTheComputer()
{
    return {latin("Demo Computer"), latin("MacBook"),         latin("Simplo"),       latin("bq20z451"),
            latin("OS X"),          latin("D867D0E10AB1234"), latin("C02MN1TXF5YW"), latin("Marathon"),
            latin("(11-inch"),      latin("K750 Keyboard")};
}

/// Before everything else: the menu's rows are made with the interface.
struct InPseudoLanguage
{
    test::PseudoLanguage language;
};

class TranslatedViewTest : public InPseudoLanguage, public test::PopupFixture
{
protected:
    void expectTranslatedAndWhole()
    {
        QApplication::processEvents();
        EXPECT_EQ(test::untranslatedTexts(*window(), namesOfTheComputer()), QStringList());
        EXPECT_EQ(test::cutTexts(*window(), namesOfTheComputer()), QStringList());
    }
};

TEST_F(TranslatedViewTest, IsTranslatedAndWholeOnBattery)
{
    addDevices();
    open();
    expectTranslatedAndWhole();
}

TEST_F(TranslatedViewTest, IsTranslatedAndWholeWhileCharging)
{
    plugIn();
    open();
    expectTranslatedAndWhole();
}

TEST_F(TranslatedViewTest, IsTranslatedAndWholeWhenFull)
{
    fillUp();
    open();
    expectTranslatedAndWhole();
}

TEST_F(TranslatedViewTest, IsTranslatedAndWholeWithoutABattery)
{
    removeBattery();
    make();
    open();
    expectTranslatedAndWhole();
}

TEST_F(TranslatedViewTest, HasATranslatedMenu)
{
    addDevices();
    plugIn();
    interface.updateFacts(QString());
    QStringList untranslated;
    for (const StatusMenu::Row& row : interface.statusMenu().rows()) {
        const QString left = test::untranslatedPart(row.text);
        const QStringList names = namesOfTheComputer();
        if (!left.isEmpty() && std::none_of(names.begin(), names.end(),
                                            [&](const QString& name) { return row.text.contains(name); }))
            untranslated.append(row.text);
    }
    EXPECT_EQ(untranslated, QStringList());
}

TEST(PseudoLanguageTest, SeesWhatIsNotTranslated)
{
    using test::untranslatedPart;
    EXPECT_EQ(untranslatedPart(latin("[one [two]] three")), latin("three"));
    EXPECT_EQ(untranslatedPart(latin("[one [two]] 3.5 mAh, 60 %")), QString());
    QLabel label(latin("words"));
    label.resize(2, 2);
    EXPECT_EQ(test::untranslatedTexts(label, {}).size(), 1);
    EXPECT_EQ(test::cutTexts(label), QStringList(latin("words")));
    label.setText(latin("[words]"));
    label.adjustSize();
    EXPECT_EQ(test::untranslatedTexts(label, {}), QStringList());
    EXPECT_EQ(test::cutTexts(label), QStringList());
}

} // namespace
