#include "displays/wlr/wlr_hardware.h"
#include "rig/sway.h"
#include "rig/wait.h"
#include "unit/temporary_directory.h"
#include "wayland/wayland_connection.h"

#include <gtest/gtest.h>

using namespace nocturo;

using rig::Sway;
using rig::waitUntil;

Ramp fallingRamp(std::uint32_t size) {
    Ramp ramp = identityRamp(size);
    for (auto* channel : {&ramp.red, &ramp.green, &ramp.blue}) {
        std::reverse(channel->begin(), channel->end());
    }
    ramp.green[1] = 12345; // so that no mix-up of channels goes unseen
    ramp.blue[2] = 23456;
    return ramp;
}

std::array<std::vector<std::uint16_t>, 3> channelsOf(const Ramp& ramp) {
    return {ramp.red, ramp.green, ramp.blue};
}

TEST(WlrHardware, WritesRampsOfTheOutputsOwnSizeAndGivesTheOutputUpAfterwards) {
    if (const std::string why = Sway::whyMissing(); !why.empty()) {
        GTEST_SKIP() << why;
    }
    const TemporaryDirectory edids;
    std::filesystem::create_directory(edids / "card1-HEADLESS-1");
    writeText(edids / "card1-HEADLESS-1/edid", "EDID");
    for (const std::uint32_t size : {256U, 1024U, 4096U}) {
        const Sway sway(2, size);
        WlrHardware hardware(WaylandConnection::open(sway.display()), edids.path());
        const auto heads = [&] {
            std::vector<Head> listed;
            hardware.topologyGeneration();
            EXPECT_TRUE(hardware.listHeads(listed));
            return listed;
        };
        const auto holds = [&](const std::string& output, const std::optional<Ramp>& ramp) {
            return waitUntil([&] {
                const auto held = sway.ramp(output);
                return held.has_value() == ramp.has_value() &&
                       (!ramp || *held == channelsOf(*ramp));
            });
        };
        const std::vector<Head> found = heads();
        ASSERT_EQ(found.size(), 2U);
        EXPECT_EQ(found[0].connector, "HEADLESS-1");
        EXPECT_EQ(found[0].edid, (std::vector<std::uint8_t>{'E', 'D', 'I', 'D'}));
        EXPECT_TRUE(found[1].edid.empty());
        EXPECT_GT(found[0].bounds.width, 0);

        const std::uint32_t crtc = found[0].crtc;
        for (const bool effect : {true, false}) { // as display services do it
            hardware.expectWrite(crtc);
            EXPECT_EQ(heads()[0].rampSize, size);
            hardware.keepSystemRamp(crtc, identityRamp(size));
            const Ramp written = effect ? fallingRamp(size) : identityRamp(size);
            EXPECT_TRUE(hardware.writeRamp(crtc, written));
            EXPECT_TRUE(holds("HEADLESS-1", effect ? std::optional(written) : std::nullopt));
            EXPECT_TRUE(holds("HEADLESS-2", std::nullopt));
            Ramp read(size);
            EXPECT_TRUE(hardware.readRamp(crtc, read));
            EXPECT_EQ(read, written);
        }
    }
}
