#include "preferences/panes/TitlePreview.h"

#include <gtest/gtest.h>

#include <QLabel>

#include "tests/preferences/Input.h"
#include "tests/preferences/SettingsFixture.h"
#include "tests/support/QtPrinters.h"
#include "widgets/QuietLabel.h"
#include "widgets/controls/BoundControls.h"

using namespace quindle;

namespace {

struct TitlePreviewTest : testing::Test
{
    QString caption() const { return preview.findChild<QuietLabel*>()->text(); }
    QString shown() const { return preview.findChild<QLabel*>(QStringLiteral("shownTitle"))->text(); }

    test::FixedTitle title;
    BoundLineEdit field;
    TitlePreview preview;
};

TEST_F(TitlePreviewTest, ShowsWhatTheFieldGivesAtEveryKey)
{
    preview.follow(field, title);
    test::type(field, QStringLiteral("%p% %s"));
    EXPECT_EQ(shown(), QStringLiteral(u"66.7% \u2B07\uFE0E"));
    test::type(field, QStringLiteral(" %"));
    EXPECT_EQ(shown(), QStringLiteral(u"66.7% \u2B07\uFE0E %"));
    test::type(field, QStringLiteral("r"));
    EXPECT_EQ(shown(), QStringLiteral(u"66.7% \u2B07\uFE0E 3:42"));
}

TEST_F(TitlePreviewTest, ShowsWhatABoundTemplateGives)
{
    preview.follow(title);
    EXPECT_EQ(shown(), QStringLiteral("no text"));
    preview.setProperty("titleTemplate", QStringLiteral("%l"));
    EXPECT_EQ(preview.titleTemplate(), QStringLiteral("%l"));
    EXPECT_EQ(shown(), QStringLiteral("293"));
}

TEST_F(TitlePreviewTest, SaysWhenTheTextIsNotStored)
{
    field.setBoundText(QStringLiteral("%p%"));
    preview.follow(field, title);
    EXPECT_EQ(caption(), QStringLiteral("Now shows"));
    const auto* label = preview.findChild<QLabel*>(QStringLiteral("shownTitle"));
    test::type(field, QStringLiteral("!"));
    EXPECT_EQ(caption(), QStringLiteral("Would show"));
    EXPECT_EQ(label->accessibleName(), QStringLiteral("Would show 66.7%!"));
    test::pressKey(field, Qt::Key_Return);
    EXPECT_EQ(caption(), QStringLiteral("Now shows"));
    EXPECT_EQ(label->accessibleName(), QStringLiteral("Now shows 66.7%!"));
}

TEST_F(TitlePreviewTest, RefreshShowsThePresentValues)
{
    field.setText(QStringLiteral("%t"));
    preview.follow(field, title);
    EXPECT_EQ(shown(), QStringLiteral("30.0"));
    title.values->temperature = 86;
    EXPECT_EQ(shown(), QStringLiteral("30.0"));
    preview.refresh();
    EXPECT_EQ(shown(), QStringLiteral("86.0"));
}

TEST_F(TitlePreviewTest, SaysWhenThereIsNoTitle)
{
    preview.follow(field, title);
    EXPECT_EQ(shown(), QStringLiteral("no text"));
    field.setText(QStringLiteral("%p%"));
    title.values.reset();
    preview.refresh();
    EXPECT_EQ(shown(), QStringLiteral("no text without a battery"));
}

TEST_F(TitlePreviewTest, WatchesTheValuesWhileItIsSeen)
{
    preview.show();
    EXPECT_FALSE(title.isWatched());
    preview.follow(field, title);
    EXPECT_TRUE(title.isWatched());
    preview.hide();
    EXPECT_FALSE(title.isWatched());
    preview.show();
    EXPECT_TRUE(title.isWatched());
}

TEST_F(TitlePreviewTest, NobodyWatchesBeforeItIsSeen)
{
    preview.follow(title);
    EXPECT_FALSE(title.isWatched());
}

TEST_F(TitlePreviewTest, LongTitlesNeedNoMoreRoom)
{
    preview.follow(field, title);
    const QSize before = preview.sizeHint();
    field.setText(QString(5000, u'w'));
    EXPECT_EQ(preview.minimumSizeHint().width(), TitlePreview().minimumSizeHint().width());
    EXPECT_EQ(preview.sizeHint().height(), before.height());
    preview.resize(before);
    EXPECT_FALSE(preview.grab().isNull());
}

TEST_F(TitlePreviewTest, MarkupIsShownLiterally)
{
    preview.follow(field, title);
    field.setText(QStringLiteral("<b>&%l</b>"));
    EXPECT_EQ(shown(), QStringLiteral("<b>&293</b>"));
    EXPECT_EQ(preview.findChild<QLabel*>(QStringLiteral("shownTitle"))->textFormat(), Qt::PlainText);
}

} // namespace
