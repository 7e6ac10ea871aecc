#include <gtest/gtest.h>

#include <QObject>

#include "menubar/NamedImages.h"
#include "menubar/ObjectController.h"
#include "menubar/ProgressIndicator.h"
#include "platform/Image.h"

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

TEST(ProgressIndicator, TellsOfOtherFiltersOnly)
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
    ObjectController controller;
    int changes = 0;
    controller.setObserver([&] { ++changes; });
    EXPECT_EQ(controller.content(), nullptr);
    auto object = std::make_unique<QObject>();
    controller.addObject(object.get());
    EXPECT_EQ(controller.content(), object.get());
    EXPECT_EQ(changes, 1);
    object.reset();
    EXPECT_EQ(controller.content(), nullptr);
}

} // namespace
