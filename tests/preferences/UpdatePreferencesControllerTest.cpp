#include "preferences/panes/UpdatePreferencesController.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "preferences/panes/UpdateView.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/TestData.h"

using namespace quindle;

namespace {

class UpdatePreferencesControllerTest : public testing::Test
{
protected:
    FakeBundle bundle;
    int asked = 0;
    InstallationSource source{InstallationSource::Kind::Package, QStringLiteral("apt"),
                              QStringLiteral("quindle-helper")};
    UpdatePreferencesController pane{bundle, [this] {
                                         ++asked;
                                         return source;
                                     }};

    QString textOf(const char* label)
    {
        const auto* found = pane.view().findChild<QLabel*>(QString::fromLatin1(label));
        return found ? found->text() : QStringLiteral("no such label");
    }
};

TEST_F(UpdatePreferencesControllerTest, HasItsIdentity)
{
    EXPECT_EQ(pane.preferencesTitle(), QStringLiteral("Update"));
    EXPECT_EQ(pane.preferencesIdentifier(), QStringLiteral("Update"));
    EXPECT_EQ(pane.preferencesToolTip(), std::nullopt);
    EXPECT_EQ(pane.initialFirstResponder(), nullptr);
}

TEST_F(UpdatePreferencesControllerTest, HasTheBundlesIcon)
{
    const QTemporaryDir folder;
    const QString icons = folder.filePath(QStringLiteral("Contents/Resources/icons"));
    ASSERT_TRUE(QDir().mkpath(icons));
    ASSERT_TRUE(QFile::copy(testDataFolder() + QStringLiteral("/../../resources/icons/prefUpdate.svg"),
                            icons + QStringLiteral("/prefUpdate.svg")));
    bundle.bundlePath = folder.path();
    const QIcon icon = pane.preferencesIcon();
    EXPECT_TRUE(icon.isMask());
    const QImage picture = icon.pixmap(24, 24).toImage();
    ASSERT_FALSE(picture.isNull());
    EXPECT_GT(picture.pixelColor(12, 12).alpha(), 128) << "the arrow's shaft";
}

TEST_F(UpdatePreferencesControllerTest, MakesItsViewWhenItIsAskedFor)
{
    EXPECT_EQ(asked, 0);
    const QWidget* view = &pane.view();
    EXPECT_EQ(&pane.view(), view);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(view->parentWidget(), nullptr);
}

TEST_F(UpdatePreferencesControllerTest, ShowsTheVersionAndWhereUpdatesComeFrom)
{
    bundle.info = QVariantMap{{QStringLiteral("CFBundleShortVersionString"), QStringLiteral("0.5")},
                              {QStringLiteral("CFBundleVersion"), QStringLiteral("12")}};
    EXPECT_EQ(textOf("versionLabel"), QStringLiteral("0.5 (12)"));
    EXPECT_EQ(textOf("updateSourceLabel"), updateSourceText(source));
}

TEST_F(UpdatePreferencesControllerTest, OffersNothingToPress)
{
    EXPECT_TRUE(pane.view().findChildren<QAbstractButton*>().isEmpty());
}

TEST(UpdateView, LeavesNoEmptyLineBelowAText)
{
    for (int words = 1; words <= 40; ++words) {
        UpdateView view(QStringLiteral("1"), QStringLiteral("version ").repeated(words).trimmed());
        view.resize(view.width(), view.heightForWidth(view.width()));
        view.grab();
        const auto* label = view.findChild<QLabel*>(QStringLiteral("updateSourceLabel"));
        ASSERT_TRUE(label);
        EXPECT_EQ(label->height(), label->heightForWidth(label->width())) << words << " words";
    }
}

TEST(UpdateView, FromRightToLeftTheVersionStandsBesideItsCaption)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    UpdateView view(QStringLiteral("0.1.0 (1)"), QStringLiteral("-"));
    view.resize(view.sizeHint());
    view.grab();
    auto* label = view.findChild<QLabel*>(QStringLiteral("versionLabel"));
    ASSERT_TRUE(label);
    const QImage drawn = label->grab().toImage();
    const auto isDrawnAt = [&drawn](int x) {
        for (int y = 0; y < drawn.height(); ++y)
            if (drawn.pixelColor(x, y) != drawn.pixelColor(0, 0))
                return true;
        return false;
    };
    int last = drawn.width() - 1;
    while (last > 0 && !isDrawnAt(last))
        --last;
    EXPECT_GT(last, drawn.width() - label->fontMetrics().height());
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(UpdatePreferencesControllerTest, GrowsWithTheFont)
{
    for (const double factor : {1.0, 2.0}) {
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * factor);
        pane.view().setFont(font);
        const QSize size = pane.view().sizeHint();
        pane.view().resize(size.width(), pane.view().heightForWidth(size.width()));
        pane.view().ensurePolished();
        pane.view().grab();
        for (const QLabel* label : pane.view().findChildren<QLabel*>())
            EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                << label->objectName().toStdString() << ' ' << factor;
    }
}

TEST(UpdatePreferencesControllerDeathTest, IsNotMadeFromAnArchive)
{
    EXPECT_EXIT(UpdatePreferencesController::initWithCoder(), testing::KilledBySignal(SIGABRT),
                "quindle: fatal: Method not implemented\n");
}

TEST(VersionText, NamesTheBuildWhereItSaysMore)
{
    struct Case
    {
        const char* version;
        const char* build;
        const char* text;
    };
    const Case cases[]{
        {"0.5", "12", "0.5 (12)"}, {"0.5", "", "0.5"},  {"", "12", "12"},
        {"0.5", "0.5", "0.5"},     {"", "", "Unknown"},
    };
    for (const Case& row : cases)
        EXPECT_EQ(versionText(QVariantMap{
                      {QStringLiteral("CFBundleShortVersionString"), QString::fromLatin1(row.version)},
                      {QStringLiteral("CFBundleVersion"), QString::fromLatin1(row.build)}}),
                  QString::fromLatin1(row.text));
    EXPECT_EQ(versionText(std::nullopt), QStringLiteral("Unknown"));
}

TEST(UpdateSourceText, SaysOnlyWhatIsKnown)
{
    using Kind = InstallationSource::Kind;
    EXPECT_EQ(
        updateSourceText({Kind::Package, QStringLiteral("dnf"), QStringLiteral("quindle")}),
        QStringLiteral("This is the package \"quindle\". Newer versions of it are installed with dnf, as "
                       "those of the other packages of this system."));
    EXPECT_EQ(updateSourceText({Kind::Build, {}, {}}),
              QStringLiteral("This copy was built on this computer. Newer source, built again, updates it."));
    EXPECT_EQ(updateSourceText({}),
              QStringLiteral("Newer versions come from where this copy was installed from."));
}

} // namespace
