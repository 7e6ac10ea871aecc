#include "preferences/window/FrameAutosave.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>
#include <gtest/gtest.h>

#include "tests/support/ComesTrue.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

class FrameAutosaveTest : public testing::Test
{
protected:
    MemoryUserDefaults defaults;
    QWidget window;

    std::unique_ptr<FrameAutosave> autosave(bool placesWindows = true,
                                            std::chrono::milliseconds settleTime = 1h)
    {
        return std::make_unique<FrameAutosave>(window, defaults, QStringLiteral("Name"), placesWindows,
                                               settleTime);
    }

    QString stored() const { return defaults.values.value(QStringLiteral("Name")).toString(); }
    void store(const QString& frame) { defaults.values.insert(QStringLiteral("Name"), frame); }

    /// With the decorations around it.
    void showAt(const QRect& frame)
    {
        window.show();
        QApplication::processEvents();
        window.resize(frame.size() - (window.frameGeometry().size() - window.size()));
        window.move(frame.topLeft());
        QApplication::processEvents();
    }

    static QString screenText()
    {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        return frameText({screen, screen}).section(QLatin1Char(' '), 4);
    }
};

TEST_F(FrameAutosaveTest, IsStoredWhenTheWindowIsHidden)
{
    const auto kept = autosave();
    showAt({10, 20, 300, 200});
    EXPECT_TRUE(defaults.writes.isEmpty());
    window.close();
    EXPECT_EQ(stored(), QStringLiteral("10 20 300 200 ") + screenText());
    EXPECT_EQ(defaults.writes.size(), 1);
}

TEST_F(FrameAutosaveTest, IsNotStoredOnTheWay)
{
    const auto kept = autosave();
    showAt({10, 20, 300, 200});
    for (int x = 10; x < 100; ++x) {
        window.move(x, 20);
        QApplication::processEvents();
    }
    EXPECT_TRUE(defaults.writes.isEmpty());
}

TEST_F(FrameAutosaveTest, IsStoredOnceWhenAMovedWindowRests)
{
    const auto kept = autosave(true, 1ms);
    showAt({10, 20, 300, 200});
    window.move(50, 60);
    EXPECT_TRUE(comesTrue([this] { return stored().startsWith(QStringLiteral("50 60 300 200 ")); }))
        << stored().toStdString();
}

TEST_F(FrameAutosaveTest, OneThatTheUserSizesIsStoredOnceItRests)
{
    const FrameAutosave kept(window, defaults, QStringLiteral("Name"), true, 1ms,
                             FrameAutosave::Sizing::ByUser);
    showAt({10, 20, 300, 200});
    window.resize(500, 400);
    EXPECT_TRUE(comesTrue([this] { return stored().contains(QStringLiteral(" 500 400 ")); }))
        << stored().toStdString();
}

TEST_F(FrameAutosaveTest, OfAMaximizedWindowTheFormerOneStays)
{
    store(QStringLiteral("10 20 300 200 ") + screenText());
    const auto kept = autosave();
    EXPECT_TRUE(kept->restore());
    window.showMaximized();
    QApplication::processEvents();
    window.close();
    EXPECT_EQ(stored(), QStringLiteral("10 20 300 200 ") + screenText());
}

TEST_F(FrameAutosaveTest, IsStoredAtTheEnd)
{
    {
        const auto kept = autosave();
        showAt({10, 20, 300, 200});
        window.move(50, 60);
        QApplication::processEvents();
    }
    EXPECT_TRUE(stored().startsWith(QStringLiteral("50 60 300 200 "))) << stored().toStdString();
}

TEST_F(FrameAutosaveTest, IsRestored)
{
    store(QStringLiteral("30 40 350 250 ") + screenText());
    const auto kept = autosave();
    EXPECT_TRUE(kept->restore());
    EXPECT_EQ(QRect(window.pos(), window.size()), QRect(30, 40, 350, 250));
}

TEST_F(FrameAutosaveTest, OfAScreenThatIsGoneComesOntoThisOne)
{
    store(QStringLiteral("5030 40 350 250 5000 0 1920 1080"));
    const auto kept = autosave();
    EXPECT_TRUE(kept->restore());
    EXPECT_EQ(QRect(window.pos(), window.size()), QRect(30, 40, 350, 250));
}

TEST_F(FrameAutosaveTest, OfAWindowThatBecameLargerStaysOnTheScreen)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    store(frameText({QRect(screen.right() - 99, screen.bottom() - 99, 100, 100), screen}));
    const auto kept = autosave();
    EXPECT_TRUE(kept->restore());
    window.resize(300, 200);
    kept->placeAtRestored();
    EXPECT_EQ(window.frameGeometry().bottomRight(), screen.bottomRight());
}

TEST_F(FrameAutosaveTest, WithoutAStoredOneNothingHappens)
{
    const QRect before = window.geometry();
    for (const QVariant& value : {QVariant(), QVariant(QStringLiteral("no frame")), QVariant(7)}) {
        defaults.values.insert(QStringLiteral("Name"), value);
        const auto kept = autosave();
        EXPECT_FALSE(kept->restore());
        kept->placeAtRestored();
        EXPECT_EQ(window.geometry(), before);
    }
}

TEST_F(FrameAutosaveTest, WhereTheDesktopPlacesWindowsOnlyTheSizeCounts)
{
    store(QStringLiteral("30 40 350 250 0 0 1920 1080"));
    const QPoint before = window.pos();
    const auto kept = autosave(false);
    EXPECT_TRUE(kept->restore());
    EXPECT_EQ(window.size(), QSize(350, 250));
    EXPECT_EQ(window.pos(), before);
    window.show();
    window.resize(QSize(400, 300) - (window.frameGeometry().size() - window.size()));
    QApplication::processEvents();
    window.close();
    EXPECT_EQ(stored(), QStringLiteral("30 40 400 300 0 0 1920 1080"));
}

TEST_F(FrameAutosaveTest, WithoutPositionsTheFirstFrameIsCentred)
{
    const auto kept = autosave(false);
    showAt({10, 20, 300, 200});
    window.close();
    const auto frame = frameFromText(stored());
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->frame, centredFrame({300, 200}, frame->screen));
}

} // namespace
