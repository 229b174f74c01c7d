// The loop by itself and inside another one, as a toolkit's runs around it.

#include "base/event_loop.h"
#include "base/program_watch.h"
#include "temporary_directory.h"

#include <gmock/gmock.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

using namespace nocturo;

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using testing::ElementsAre;

constexpr auto kAtOnce = 0ms;

TEST(ProgramWatch, TellsOfAProgramThatIsRemovedAndNotOfOneThatIsReplaced) {
    const TemporaryDirectory directory;
    const auto program = directory / "program";
    writeText(program, "old");
    EventLoop loop;
    const auto patience = 200ms;
    const ProgramWatch watch(
        program, loop, [&] { loop.quit(1); }, patience);
    std::filesystem::remove(program);
    const auto replacing = loop.scheduleTimer(patience / 4, [&] { writeText(program, "new"); });
    const auto late = loop.scheduleTimer(2 * patience, [&] { loop.quit(0); });
    EXPECT_EQ(loop.run(), 0);

    EventLoop second;
    const ProgramWatch again(
        program, second, [&] { second.quit(1); }, kAtOnce);
    std::filesystem::remove_all(directory.path());
    EXPECT_EQ(second.run(), 1);
}

TEST(EventLoop, CallsInTheOrderOfHandingOverAndWhatIsAddedMeanwhileNext) {
    EventLoop loop;
    std::vector<int> called;
    loop.callSoon([&] {
        called.push_back(1);
        loop.callSoon([&] {
            called.push_back(3);
            loop.quit(7);
        });
    });
    loop.callSoon([&] { called.push_back(2); });
    EXPECT_EQ(loop.run(), 7);
    EXPECT_THAT(called, ElementsAre(1, 2, 3));
}

// When a timer of 40 ms fires three times whose first action takes 100, in tens of milliseconds.
std::vector<int> firesOfADelayedTimer() {
    EventLoop loop;
    const auto start = steady_clock::now();
    std::vector<int> fires;
    const auto timer = loop.scheduleRepeatingTimer(40ms, [&] {
        fires.push_back(static_cast<int>((steady_clock::now() - start) / 10ms));
        if (fires.size() == 1) {
            poll(nullptr, 0, 100);
        }
        if (fires.size() == 3) {
            loop.quit();
        }
    });
    loop.run();
    return fires;
}

TEST(EventLoop, KeepsThePhaseOfATimerAndMakesUpForNothing) {
    std::vector<int> fires;
    // A busy machine may delay some.
    for (int tries = 0; tries < 20 && fires != std::vector{4, 14, 16}; ++tries) {
        fires = firesOfADelayedTimer();
    }
    EXPECT_THAT(fires, ElementsAre(4, 14, 16));
}

TEST(EventLoop, LetsActionsDestroyTheirOwnTimerAndWatch) {
    EventLoop loop;
    const int readable = eventfd(1, 0);
    int called = 0;
    std::unique_ptr<Timer> timer;
    timer = loop.scheduleRepeatingTimer(kAtOnce, [&called, &timer, alive = std::string(100, 'x')] {
        timer.reset();
        called += alive.size() == 100 ? 1 : 0;
    });
    std::unique_ptr<Watch> watch;
    watch = loop.watch(readable, [&called, &watch, alive = std::string(100, 'x')] {
        watch.reset();
        called += alive.size() == 100 ? 1 : 0;
    });
    const auto end = loop.scheduleTimer(20ms, [&] { loop.quit(); });
    loop.run();
    EXPECT_EQ(called, 2); // what stayed readable was not told again
    close(readable);
}

TEST(EventLoop, RunsInsideAnotherLoopThatAddsToItBetweenItsRounds) {
    EventLoop loop;
    bool ended = false;
    bool fired = false;
    std::unique_ptr<Timer> timer;
    const auto outer = [&] {
        while (!ended) {
            loop.prepare();
            if (timer == nullptr) {
                // The loop is armed already, as when a toolkit's handler adds something.
                timer = loop.scheduleTimer(20ms, [&] {
                    fired = true;
                    loop.dispatchPending(); // as a dialog in a handler would; does nothing
                    loop.quit(3);
                });
            }
            const bool due = loop.prepare();
            pollfd ready{loop.descriptor(), POLLIN, 0};
            ASSERT_TRUE(due || poll(&ready, 1, 5000) == 1) << "the timer was not armed";
            loop.dispatchPending();
        }
    };
    loop.runInside(outer, [&] { ended = true; });
    EXPECT_EQ(loop.run(), 3);
    EXPECT_TRUE(fired);
}
