#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QDialog>
#include <QFontInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "preferences/panes/GeneralPreferencesController.h"
#include "preferences/panes/MenuBarPreferencesController.h"
#include "preferences/panes/UpdatePreferencesController.h"
#include "tests/preferences/Input.h"
#include "tests/preferences/LongTexts.h"
#include "tests/preferences/SettingsFixture.h"
#include "tests/support/QtPrinters.h"
#include "widgets/PlainLabel.h"

using namespace quindle;

namespace {

struct GeneralPaneLayoutTest : testing::Test, test::SettingsFixture
{
    void open()
    {
        controller.viewWillAppear();
        test::showActive(controller.view());
    }

    // Everything a user reads or presses, but for the preview, which may be cut.
    std::vector<QWidget*> textWidgets()
    {
        std::vector<QWidget*> found;
        for (QWidget* widget : controller.view().findChildren<QWidget*>()) {
            const bool hasText = qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget);
            if (hasText && widget->isVisible() && !qobject_cast<PlainLabel*>(widget))
                found.push_back(widget);
        }
        return found;
    }

    void expectNothingClipped(const char* what)
    {
        QApplication::processEvents();
        const QRect pane = controller.view().rect();
        EXPECT_GE(textWidgets().size(), 16U) << what;
        for (const QWidget* widget : textWidgets()) {
            const QSize needed = widget->hasHeightForWidth()
                                     ? QSize(0, widget->heightForWidth(widget->width()))
                                     : widget->sizeHint();
            EXPECT_GE(widget->width(), needed.width()) << what << ": " << nameOf(*widget);
            EXPECT_GE(widget->height(), needed.height()) << what << ": " << nameOf(*widget);
            const QRect place(widget->mapTo(&controller.view(), QPoint()), widget->size());
            EXPECT_TRUE(pane.contains(place)) << what << ": " << nameOf(*widget);
        }
    }

    static std::string nameOf(const QWidget& widget) { return widget.objectName().toStdString(); }

    QString sentText;
    test::FixedTitle title;
    GeneralPreferencesController controller{settings, title, computer.distributedNotificationCenter,
                                            computer.bundle, [this] { return sentText; }};
};

struct HelperPaneLayoutTest : GeneralPaneLayoutTest
{
    HelperPaneLayoutTest() { computer.bundle.bundlePath.prepend(QStringLiteral("/usr/lib/Quindle Helper")); }
};

TEST_F(HelperPaneLayoutTest, TextsFit)
{
    open();
    expectNothingClipped("english");
}

TEST_F(HelperPaneLayoutTest, LongerLanguagesFit)
{
    test::LongTexts longTexts;
    QApplication::installTranslator(&longTexts);
    open();
    QApplication::removeTranslator(&longTexts);
    expectNothingClipped("german");
}

TEST_F(HelperPaneLayoutTest, FollowsALargerFont)
{
    open();
    QFont font = controller.view().font();
    const QSize before = controller.view().sizeHint();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * 2);
    controller.view().setFont(font);
    EXPECT_GT(controller.view().sizeHint().height(), before.height() * 3 / 2);
    controller.view().resize(controller.view().sizeHint());
    expectNothingClipped("200 %");
}

TEST_F(HelperPaneLayoutTest, MirrorsWhereWritingRunsFromRightToLeft)
{
    controller.view().setLayoutDirection(Qt::RightToLeft);
    open();
    expectNothingClipped("right to left");
    const auto* caption = controller.view().findChild<QLabel*>(QStringLiteral("textCaption"));
    EXPECT_GT(caption->x(), caption->buddy()->x());
}

TEST_F(GeneralPaneLayoutTest, CaptionsStandAtTheHeightOfTheirControls)
{
    open();
    int captions = 0;
    for (const auto* caption :
         controller.view().findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
        const QWidget* control = caption->buddy();
        if (!control)
            continue;
        ++captions;
        EXPECT_LE(std::abs(caption->geometry().center().y() - control->geometry().center().y()), 2)
            << nameOf(*caption);
        EXPECT_LT(caption->geometry().right(), control->geometry().left()) << nameOf(*caption);
    }
    EXPECT_EQ(captions, 5);
}

TEST_F(GeneralPaneLayoutTest, MnemonicsAreUnique)
{
    open();
    QStringList mnemonics;
    for (const QWidget* widget : textWidgets()) {
        const QString text = widget->property("text").toString();
        const QKeySequence mnemonic = QKeySequence::mnemonic(text);
        if (!mnemonic.isEmpty())
            mnemonics.append(mnemonic.toString());
        else
            EXPECT_FALSE(qobject_cast<const QAbstractButton*>(widget)) << nameOf(*widget);
    }
    EXPECT_EQ(mnemonics.size(), 10);
    EXPECT_EQ(mnemonics.removeDuplicates(), 0);
}

TEST_F(GeneralPaneLayoutTest, TabGoesThroughTheControlsInReadingOrder)
{
    open();
    QStringList order;
    const QWidget* first = controller.initialFirstResponder();
    const QWidget* widget = first;
    do {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isEnabled() && widget->isVisible())
            order.append(widget->objectName().isEmpty() ? widget->property("text").toString()
                                                        : widget->objectName());
        widget = widget->nextInFocusChain();
    } while (widget != first);
    EXPECT_EQ(order.join(u' '),
              QStringLiteral("customMenuBarTextField parametersButton resetButton &Celsius &Fahrenheit "
                             "&Kelvin showIconsCheckbox autoUploadCheckbox sentDataButton "
                             "launchAtStartupCheckbox"));
}

TEST_F(GeneralPaneLayoutTest, EveryControlHasAnAccessibleName)
{
    open();
    int controls = 0;
    for (QWidget* widget : controller.view().findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus)
            continue;
        ++controls;
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty()) << nameOf(*widget);
        EXPECT_FALSE(accessible->text(QAccessible::Name).contains(u'&')) << nameOf(*widget);
    }
    EXPECT_EQ(controls, 10);
}

TEST_F(GeneralPaneLayoutTest, TheLinkReadsAsAButtonAndShowsWhatIsSent)
{
    open();
    auto* link = controller.view().findChild<QAbstractButton*>(QStringLiteral("sentDataButton"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(link)->role(), QAccessible::Button);
    sentText = QStringLiteral("{\"Serial\": \"C02xxxx\"}");
    test::pressKey(*link, Qt::Key_Return);
    auto* dialog = controller.view().findChild<QDialog*>();
    ASSERT_TRUE(dialog);
    auto* text = dialog->findChild<QPlainTextEdit*>();
    EXPECT_EQ(text->toPlainText(), sentText);
    EXPECT_TRUE(text->isReadOnly());
    EXPECT_FALSE(text->accessibleName().isEmpty());
    EXPECT_TRUE(computer.distributedNotificationCenter.posted.isEmpty());
}

TEST_F(GeneralPaneLayoutTest, SaysWhenNothingWouldBeSent)
{
    open();
    controller.view().findChild<QAbstractButton*>(QStringLiteral("sentDataButton"))->click();
    auto* dialog = controller.view().findChild<QDialog*>();
    ASSERT_TRUE(dialog);
    EXPECT_FALSE(dialog->findChild<QPlainTextEdit*>());
    EXPECT_EQ(dialog->findChild<QLabel*>()->text(),
              QStringLiteral("Nothing would be sent: no host of the statistics service is configured."));
}

TEST_F(GeneralPaneLayoutTest, SaysBesideTheSwitchThatNothingCanBeSent)
{
    const auto beside = [this] {
        return controller.view().findChild<QLabel*>(QStringLiteral("statisticsDescription"))->text();
    };
    open();
    EXPECT_EQ(beside(), QStringLiteral("Nothing can be sent: no statistics service is configured."));
    const auto* box = controller.view().findChild<QAbstractButton*>(QStringLiteral("autoUploadCheckbox"));
    EXPECT_EQ(box->accessibleDescription(), beside());
    EXPECT_TRUE(box->isEnabled());
    computer.bundle.info = {{QStringLiteral("QDStatisticsHost"), QStringLiteral("stats.example")}};
    controller.viewWillAppear();
    EXPECT_EQ(beside(), QStringLiteral("The serial number is masked."));
    EXPECT_EQ(box->accessibleDescription(), beside());
}

TEST_F(GeneralPaneLayoutTest, TheTextHasThePanesWholeWidth)
{
    open();
    const auto* field = controller.view().findChild<QLineEdit*>(QStringLiteral("customMenuBarTextField"));
    const auto* preview = controller.view().findChild<QWidget*>(QStringLiteral("titlePreview"));
    EXPECT_EQ(field->x(), preview->x());
    EXPECT_EQ(field->width(), preview->width());
    EXPECT_EQ(field->geometry().right(),
              controller.view().width() - controller.view().layout()->contentsMargins().right() - 1);
}

TEST_F(GeneralPaneLayoutTest, AllPanesHaveOneLeftEdge)
{
    test::FixedTitle noTitle;
    MenuBarPreferencesController menuBar{settings, noTitle, [] {}};
    UpdatePreferencesController update{computer.bundle, [] { return InstallationSource{}; }};
    QList<int> edges;
    for (QWidget* pane : {&controller.view(), &menuBar.view(), &update.view()}) {
        pane->resize(pane->sizeHint());
        pane->ensurePolished();
        pane->layout()->activate();
        edges.append(qobject_cast<QGridLayout*>(pane->layout())->cellRect(0, 1).left());
    }
    EXPECT_EQ(edges, QList<int>(3, edges.first()));
}

} // namespace
