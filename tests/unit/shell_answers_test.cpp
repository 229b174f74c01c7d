// What is taken from a shell's answers, however many things they tell.

#include "displays/gnome/desktop_shell.h"

#include <gtest/gtest.h>

#include <sys/socket.h>

using namespace nocturo;

namespace {

struct ShellAnswers : testing::Test {
    ShellAnswers() {
        int ends[2];
        socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends);
        nobody_ = ends[1];
        sd_bus* bus = nullptr;
        sd_bus_new(&bus);
        sd_bus_set_fd(bus, ends[0], ends[0]);
        sd_bus_start(bus);
        bus_.reset(bus);
    }
    ~ShellAnswers() override { close(nobody_); }

    template <class Fill>
    BusMessage answer(Fill fill) {
        sd_bus_message* message = nullptr;
        sd_bus_message_new_signal(bus_.get(), &message, "/a", "a.b", "c");
        fill(message);
        sd_bus_message_seal(message, 1, 0);
        sd_bus_message_rewind(message, 1);
        return BusMessage(message);
    }
    BusMessage outputs(int count) {
        return answer([&](sd_bus_message* message) {
            sd_bus_message_append(message, "u", 7);
            sd_bus_message_open_container(message, 'a', "(uxiiiiiuaua{sv})");
            for (int i = 0; i < count; ++i) {
                sd_bus_message_append(message, "(uxiiiiiuaua{sv})", i, std::int64_t{0}, i, 0, 320,
                                      240, 0, 0, 0, 0);
            }
            sd_bus_message_close_container(message);
            sd_bus_message_open_container(message, 'a', "(uxiausauaua{sv})");
            for (int i = 0; i < count; ++i) {
                const std::string name = "DP-" + std::to_string(i);
                sd_bus_message_append(message, "(uxiausauaua{sv})", i, std::int64_t{0}, i, 0,
                                      name.c_str(), 0, 0, 2, "edid", "ay", 2, 1, 2, "primary", "s",
                                      "yes");
            }
            sd_bus_message_close_container(message);
        });
    }
    std::optional<Ramp> ramp(std::size_t red, std::size_t blue) {
        return rampIn(answer([&](sd_bus_message* message) {
                          for (const std::size_t size : {red, red, blue}) {
                              const std::vector<std::uint16_t> channel(size, 5);
                              sd_bus_message_append_array(message, 'q', channel.data(), 2 * size);
                          }
                      }).get());
    }

    int nobody_;
    BusHandle bus_;
};

TEST_F(ShellAnswers, AreTakenAsFarAsTheyMakeSense) {
    const auto few = resourcesIn(outputs(3).get());
    ASSERT_TRUE(few);
    EXPECT_EQ(few->serial, 7U);
    ASSERT_EQ(few->outputs.size(), 3U);
    EXPECT_EQ(few->outputs[2].connector, "DP-2");
    EXPECT_EQ(few->outputs[2].bounds.x, 2);
    EXPECT_EQ(few->outputs[2].edid, (std::vector<std::uint8_t>{1, 2}));
    EXPECT_FALSE(few->outputs[2].primary);
    EXPECT_EQ(resourcesIn(outputs(100000).get())->outputs.size(), 256U);
    EXPECT_FALSE(resourcesIn(answer([](auto* message) {
                                 sd_bus_message_append(message, "us", 7, "none of your business");
                             }).get()));

    EXPECT_EQ(ramp(256, 256)->size(), 256U);
    EXPECT_EQ(ramp(0, 0)->size(), 0U);
    EXPECT_FALSE(ramp(256, 255));
    EXPECT_FALSE(ramp(kMaxRampSize + 1, kMaxRampSize + 1));
}

} // namespace
