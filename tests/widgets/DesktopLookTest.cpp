#include "widgets/DesktopLook.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QStyle>
#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "widgets/PaletteMix.h"
#include "widgets/QuietLabel.h"

using namespace quindle;

namespace {

/// How many pixels from the right edge each of the label's first lines begins.
QList<int> beginnings(QLabel& label, int lines)
{
    const QImage image = label.grab().toImage();
    const int height = label.fontMetrics().lineSpacing();
    QList<int> found;
    for (int line = 0; line < lines; ++line) {
        int least = image.width();
        for (int y = line * height; y < (line + 1) * height; ++y)
            for (int x = image.width() - 1; x >= image.width() - least; --x)
                if (image.pixelColor(x, y) != image.pixelColor(0, image.height() - 1))
                    least = image.width() - 1 - x;
        found.append(least);
    }
    return found;
}

struct DesktopLookTest : testing::Test
{
    ~DesktopLookTest() override
    {
        // Other tests are of the toolkit's own look.
        look.follow({});
    }

    static bool isDarkNow() { return isDark(QApplication::palette().color(QPalette::Window)); }
    static int duration() { return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration); }

    DesktopLook look{DesktopLook::Colours::ByWishes};
};

TEST_F(DesktopLookTest, FollowsTheColourSchemeBothWays)
{
    const QPalette before = QApplication::palette();
    ASSERT_FALSE(isDarkNow());
    look.follow({.isDark = true});
    EXPECT_TRUE(isDarkNow());
    look.follow({});
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), before.color(QPalette::Window));
}

TEST_F(DesktopLookTest, NothingMovesWhereNothingShall)
{
    const QString style = QApplication::style()->name();
    const int lively = duration();
    ASSERT_GT(lively, 0);
    look.follow({.isStill = true});
    EXPECT_EQ(duration(), 0);
    EXPECT_EQ(QApplication::style()->styleHint(QStyle::SH_Widget_Animate), 0);
    look.follow({.isStill = true});
    look.follow({});
    EXPECT_EQ(duration(), lively);
    EXPECT_EQ(QApplication::style()->name(), style);
}

TEST_F(DesktopLookTest, LeavesWordsWholeWhereLettersJoin)
{
    const auto marksKeys = [] { return QApplication::style()->styleHint(QStyle::SH_UnderlineShortcut) != 0; };
    const QString style = QApplication::style()->name();
    ASSERT_TRUE(marksKeys());
    QApplication::setLayoutDirection(Qt::RightToLeft);
    {
        DesktopLook arabic(DesktopLook::Colours::ByWishes);
        EXPECT_FALSE(marksKeys());
        EXPECT_GT(duration(), 0);
        arabic.follow({.isStill = true});
        EXPECT_EQ(duration(), 0);
        arabic.follow({});
        EXPECT_FALSE(marksKeys());
        EXPECT_GT(duration(), 0);
    }
    QApplication::setLayoutDirection(Qt::LeftToRight);
    EXPECT_TRUE(marksKeys());
    QApplication::setStyle(style);
}

TEST_F(DesktopLookTest, WrappedLinesBeginAtOneEdgeFromRightToLeft)
{
    const QString style = QApplication::style()->name();
    QApplication::setLayoutDirection(Qt::RightToLeft);
    {
        const DesktopLook hebrew(DesktopLook::Colours::ByWishes);
        QLabel plain;
        QuietLabel quiet;
        for (QLabel* label : {&plain, static_cast<QLabel*>(&quiet)}) {
            const QString word = QStringLiteral(u"\u05E9\u05DC\u05D5\u05DD");
            label->setText(QStringList(9, word).join(u' '));
            label->setWordWrap(true);
            label->setAlignment(Qt::AlignTop);
            const int width = label->fontMetrics().horizontalAdvance(word + u' ');
            label->setFixedSize(width * 7 / 2, label->fontMetrics().lineSpacing() * 4);
            const QList<int> lines = beginnings(*label, 3);
            EXPECT_EQ(lines, QList<int>(3, lines[2])) << label->metaObject()->className();
            EXPECT_LT(lines[2], width / 4);
        }
    }
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setStyle(style);
}

TEST_F(DesktopLookTest, LeavesTheColoursOfAToolkitThatHasItsOwn)
{
    const QPalette before = QApplication::palette();
    DesktopLook other(DesktopLook::Colours::OfToolkit);
    other.follow({.isDark = true, .hasStrongContrast = true});
    EXPECT_EQ(QApplication::palette(), before);
}

TEST(DesktopPalette, CanBeReadInAllItsForms)
{
    for (const bool isStrong : {false, true})
        for (const bool shallBeDark : {false, true}) {
            const QPalette palette = paletteFor({.isDark = shallBeDark, .hasStrongContrast = isStrong});
            const double least = isStrong ? 12 : 7;
            using Role = QPalette::ColorRole;
            for (const auto& [text, back] : {std::pair<Role, Role>{QPalette::WindowText, QPalette::Window},
                                             {QPalette::Text, QPalette::Base},
                                             {QPalette::ButtonText, QPalette::Button},
                                             {QPalette::ToolTipText, QPalette::ToolTipBase}})
                EXPECT_GE(contrast(palette.color(text), palette.color(back)), least) << text;
            for (const auto& [text, back] :
                 {std::pair<Role, Role>{QPalette::HighlightedText, QPalette::Highlight},
                  {QPalette::Link, QPalette::Base},
                  {QPalette::PlaceholderText, QPalette::Base}})
                EXPECT_GE(contrast(palette.color(text), palette.color(back)), isStrong ? 7 : 3.5) << text;
            EXPECT_EQ(hasStrongContrast(palette), isStrong);
            EXPECT_EQ(isDark(palette.color(QPalette::Window)), shallBeDark);
            const QColor quiet =
                quietText(palette, palette.color(QPalette::Text), palette.color(QPalette::Base));
            EXPECT_GE(contrast(quiet, palette.color(QPalette::Base)), isStrong ? 7 : 4.5);
        }
    EXPECT_FALSE(hasStrongContrast(QPalette())) << "the toolkit's own";
}

} // namespace
