#include <gtest/gtest.h>

#include "menubar/MainInterface.h"
#include "menubar/ProgressIndicator.h"
#include "menubar/StatusIcon.h"
#include "platform/Image.h"
#include "tests/support/FakePlatform.h"

using namespace quindle;

namespace {

TEST(NamedImages, OneObjectForEachName)
{
    NamedImages images;
    const auto image = images.imageNamed(QStringLiteral("#bat44"));
    image->setTemplate(true);
    EXPECT_EQ(images.imageNamed(QStringLiteral("#bat44")), image);
    EXPECT_TRUE(images.imageNamed(QStringLiteral("#bat44"))->isTemplate());
    EXPECT_NE(images.imageNamed(QStringLiteral("#bat34")), image);
    EXPECT_FALSE(images.imageNamed(QStringLiteral("#bat34"))->isTemplate());
}

TEST(ProgressIndicator, AnnouncesOtherFiltersOnly)
{
    ProgressIndicator indicator;
    int changes = 0;
    indicator.setObserver([&] { ++changes; });
    const auto green = std::make_shared<HueFilter>();
    const auto red = std::make_shared<HueFilter>();
    indicator.setContentFilters({green});
    indicator.setContentFilters({green});
    EXPECT_EQ(changes, 1);
    indicator.setContentFilters({red});
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(indicator.contentFilters(), ContentFilters{red});
}

TEST(ObjectController, ForgetsWhatIsDestroyed)
{
    FakePlatform platform;
    ObjectController controller;
    EXPECT_EQ(controller.content(), nullptr);
    auto mac = QDMac::initWithDemoMode(platform.platform, true);
    controller.addObject(mac.get());
    EXPECT_EQ(controller.content(), mac.get());
    mac.reset();
    EXPECT_EQ(controller.content(), nullptr);
}

} // namespace
