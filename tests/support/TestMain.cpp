#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    qputenv("TZ", "UTC"); // tests that need another zone set it themselves
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    return RUN_ALL_TESTS();
}
