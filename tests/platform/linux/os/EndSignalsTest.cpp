#include "platform/linux/os/EndSignals.h"

#include <csignal>
#include <cstdlib>

#include <unistd.h>

#include <QCoreApplication>
#include <gtest/gtest.h>

using namespace quindle;
using namespace std::chrono_literals;

namespace {

constexpr int inItsOwnWay = 7;
constexpr auto hours = 2h;

void signalOneself(int number)
{
    ::kill(::getpid(), number);
}

[[noreturn]] void hang()
{
    for (;;)
        ::pause();
}

TEST(EndSignalsDeathTest, HaveTheMainLoopEndTheProcess)
{
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        EXPECT_EXIT(
            {
                const EndSignals signals(hours, [] { QCoreApplication::exit(inItsOwnWay); });
                signalOneself(number);
                std::_Exit(QCoreApplication::exec());
            },
            testing::ExitedWithCode(inItsOwnWay), "");
}

TEST(EndSignalsDeathTest, EndAProcessThatHangs)
{
    EXPECT_EXIT(
        {
            const EndSignals signals(20ms, [] {});
            signalOneself(SIGTERM);
            hang();
        },
        testing::KilledBySignal(SIGTERM), "");
}

// Stopped and continued, as by a terminal's job control, while it ends in its own way.
TEST(EndSignalsDeathTest, LetAStoppedProcessEndInItsOwnWay)
{
    EXPECT_EXIT(
        {
            const EndSignals signals(hours, [] {
                const pid_t parent = ::getpid();
                const pid_t child = ::fork();
                if (child == 0) {
                    // Again and again: the first one may come before the process stops.
                    while (::getppid() == parent) {
                        ::usleep(50'000);
                        ::kill(parent, SIGCONT);
                    }
                    ::_exit(0);
                }
                ::kill(parent, SIGSTOP);
                ::usleep(100'000);
                std::_Exit(inItsOwnWay);
            });
            signalOneself(SIGTERM);
            QCoreApplication::exec();
        },
        testing::ExitedWithCode(inItsOwnWay), "");
}

TEST(EndSignalsDeathTest, EndItAtOnceTheSecondTime)
{
    EXPECT_EXIT(
        {
            const EndSignals signals(hours, [] {
                signalOneself(SIGINT);
                hang();
            });
            signalOneself(SIGTERM);
            QCoreApplication::exec();
        },
        testing::KilledBySignal(SIGTERM), "");
}

TEST(EndSignalsDeathTest, EndItAlsoWhenNobodyWishesAnythingAnyMore)
{
    EXPECT_EXIT(
        {
            {
                const EndSignals signals(20ms, [] { std::_Exit(inItsOwnWay); });
            }
            signalOneself(SIGTERM);
            QCoreApplication::exec();
        },
        testing::KilledBySignal(SIGTERM), "");
}

TEST(EndSignalsDeathTest, LeaveAnIgnoredSignalAlone)
{
    EXPECT_EXIT(
        {
            std::signal(SIGHUP, SIG_IGN);
            const EndSignals signals(0ms, [] {});
            signalOneself(SIGHUP);
            ::usleep(100'000);
            std::_Exit(inItsOwnWay);
        },
        testing::ExitedWithCode(inItsOwnWay), "");
}

} // namespace
