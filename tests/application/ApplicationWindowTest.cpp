#include "application/ApplicationWindow.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QtMath>
#include <gtest/gtest.h>

#include "application/Sidebar.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"
#include "widgets/PlainLabel.h"
#include "widgets/controls/BoundControls.h"

using namespace quindle;

namespace {

struct ApplicationWindowTest : testing::Test
{
    std::unique_ptr<ApplicationWindow> make()
    {
        std::vector<ApplicationPage> pages;
        for (const char* name : {"One", "Two", "Three"})
            pages.push_back({latin(name), [this, name](QWidget* parent) {
                                 made.append(latin(name));
                                 return new QLabel(latin(name), parent);
                             }});
        return std::make_unique<ApplicationWindow>(std::move(pages), defaults, true);
    }

    /// The page that is seen, by what it says.
    static QString seenPage(const ApplicationWindow& window)
    {
        QStringList seen;
        for (const QLabel* label : window.findChildren<QLabel*>())
            if (label->isVisibleTo(&window) && !qobject_cast<const PlainLabel*>(label))
                seen.append(label->text());
        return seen.join(u' ');
    }

    MemoryUserDefaults defaults;
    QStringList made;
};

TEST_F(ApplicationWindowTest, BeginsWithTheFirstPageAndMakesNoOther)
{
    const auto window = make();
    EXPECT_EQ(window->shownPage(), latin("One"));
    EXPECT_EQ(made, QStringList{latin("One")});
    EXPECT_EQ(seenPage(*window), latin("One"));
    EXPECT_TRUE(defaults.writes.isEmpty()) << "nobody has chosen anything";
}

TEST_F(ApplicationWindowTest, AChosenPageIsShownAndComesBackTheNextTime)
{
    {
        const auto window = make();
        window->findChild<QListWidget*>()->setCurrentRow(2);
        EXPECT_EQ(window->shownPage(), latin("Three"));
        EXPECT_EQ(seenPage(*window), latin("Three"));
        EXPECT_EQ(defaults.values.value(latin("ApplicationPage")).toString(), latin("Three"));
    }
    made.clear();
    EXPECT_EQ(make()->shownPage(), latin("Three"));
    EXPECT_EQ(made, QStringList{latin("Three")}) << "pages that nobody looks at are not made";
}

TEST_F(ApplicationWindowTest, APageIsMadeOnce)
{
    const auto window = make();
    for (const char* name : {"Two", "One", "Two"})
        window->showPage(latin(name));
    EXPECT_EQ(made, (QStringList{latin("One"), latin("Two")}));
}

TEST_F(ApplicationWindowTest, AStoredPageThatIsNotThereIsTheFirst)
{
    for (const QVariant& stored : {QVariant(latin("Nowhere")), QVariant(7), QVariant()}) {
        defaults.values.insert(latin("ApplicationPage"), stored);
        EXPECT_EQ(make()->shownPage(), latin("One"));
    }
}

TEST_F(ApplicationWindowTest, KeepsItsPlaceAndSize)
{
    QSize size;
    {
        const auto window = make();
        window->show();
        window->move(20, 30);
        window->resize(700, 450);
        QApplication::processEvents();
        size = window->size();
        window->close();
    }
    const auto window = make();
    EXPECT_EQ(window->size(), size);
    EXPECT_EQ(window->pos(), QPoint(20, 30));
}

TEST_F(ApplicationWindowTest, IsNeverSmallerThanItsPagesAreMadeFor)
{
    defaults.values.insert(latin("ApplicationWindowFrame"), latin("0 0 100 100 0 0 800 800"));
    const auto window = make();
    EXPECT_EQ(window->size(), QSize(640, 420));
}

TEST_F(ApplicationWindowTest, TheComputerStandsBelowThePages)
{
    const auto window = make();
    const auto shown = [&] {
        QStringList texts;
        for (const PlainLabel* label : window->findChild<Sidebar*>()->findChildren<PlainLabel*>())
            if (label->isVisibleTo(window.get()))
                texts.append(label->text());
        return texts;
    };
    EXPECT_EQ(shown(), QStringList());
    window->setComputer(latin("ThinkPad"), latin("66.7 %"));
    EXPECT_EQ(shown(), (QStringList{latin("ThinkPad"), latin("66.7 %")}));
    window->setComputer({}, latin("No battery"));
    EXPECT_EQ(shown(), QStringList{latin("No battery")});
}

TEST_F(ApplicationWindowTest, SaysWhetherItIsSeen)
{
    const auto window = make();
    QList<bool> told;
    QObject::connect(window.get(), &ApplicationWindow::seen, [&told](bool seen) { told.append(seen); });
    window->present();
    ASSERT_TRUE(comesTrue([&] { return !told.isEmpty(); }));
    EXPECT_TRUE(told.last());
    window->close();
    EXPECT_FALSE(told.last());
}

TEST_F(ApplicationWindowTest, ControlWCloses)
{
    const auto window = make();
    window->present();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_W, Qt::ControlModifier, latin("w"));
    QApplication::sendEvent(window.get(), &press);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(ApplicationWindowTest, EscapeCloses)
{
    const auto window = make();
    window->show();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &key);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(ApplicationWindowTest, ClosingStoresWhatIsTyped)
{
    const auto window = make();
    auto* field = new BoundLineEdit(window.get());
    QString stored;
    QObject::connect(field, &BoundLineEdit::committed, field, [&] { stored = field->text(); });
    window->show();
    window->activateWindow();
    field->show();
    field->setFocus();
    QApplication::processEvents();
    field->insert(latin("typed"));
    window->close();
    EXPECT_EQ(stored, latin("typed"));
}

/// What lies on the edge would stay behind when the next row is chosen.
TEST_F(ApplicationWindowTest, TheChosenRowIsDrawnInsideItsPixelsAtAnyScale)
{
    const auto window = make();
    window->show();
    window->activateWindow();
    auto* list = window->findChild<QListWidget*>();
    list->setFocus();
    ASSERT_TRUE(comesTrue([&] { return list->hasFocus() && window->isActiveWindow(); }));
    const QRect row = list->visualItemRect(list->item(0));
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        QImage image((QSizeF(list->size()) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::white);
        list->viewport()->render(&image, {}, {}, QWidget::DrawChildren);
        const int left = qRound(row.left() * scale);
        const int top = qRound(row.top() * scale);
        const QRgb ground = image.pixel(0, image.height() - 1);
        const QPoint middle(qRound(row.center().x() * scale), qRound(row.center().y() * scale));
        EXPECT_EQ(image.pixel(left - 1, middle.y()), ground) << scale;
        EXPECT_EQ(image.pixel(middle.x(), top - 1), ground) << scale;
        EXPECT_NE(image.pixel(left + qCeil(2 * scale), middle.y()), ground) << scale;
    }
}

} // namespace
