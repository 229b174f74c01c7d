#include "displays/wlr/wlr_hardware.h"
#include "rig/sway.h"
#include "rig/wait.h"
#include "unit/temporary_directory.h"
#include "wayland/wayland_connection.h"

#include <gtest/gtest.h>

namespace nocturo {
namespace {

using rig::Sway;
using rig::waitUntil;

constexpr const char* kOutput = "HEADLESS-1";

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

class WlrHardwareTest : public testing::Test {
  protected:
    void SetUp() override {
        if (const std::string why = Sway::whyMissing(); !why.empty()) {
            GTEST_SKIP() << why;
        }
    }
    void start(int outputs = 1, std::uint32_t rampSize = 256) {
        sway.emplace(outputs, rampSize);
        hardware = open();
        ASSERT_NE(hardware, nullptr);
    }
    std::unique_ptr<WlrHardware> open() const {
        auto compositor = WaylandConnection::open(sway->display());
        return compositor != nullptr && WlrHardware::isOfferedBy(*compositor)
                   ? std::make_unique<WlrHardware>(std::move(compositor), edids.path())
                   : nullptr;
    }
    static std::vector<Head> headsOf(WlrHardware& of) {
        std::vector<Head> heads;
        of.topologyGeneration();
        EXPECT_TRUE(of.listHeads(heads));
        return heads;
    }
    /// As display services do it.
    static bool write(WlrHardware& to, std::uint32_t crtc, bool effect) {
        to.expectWrite(crtc);
        std::uint32_t size = 0;
        for (const Head& head : headsOf(to)) {
            size = head.crtc == crtc ? head.rampSize : size;
        }
        to.keepSystemRamp(crtc, identityRamp(size));
        return to.writeRamp(crtc, effect ? fallingRamp(size) : identityRamp(size));
    }
    bool holds(const std::string& output, const std::optional<Ramp>& ramp) const {
        return waitUntil([&] {
            const auto held = sway->ramp(output);
            return held.has_value() == ramp.has_value() && (!ramp || *held == channelsOf(*ramp));
        });
    }

    TemporaryDirectory edids;
    std::optional<Sway> sway;
    std::unique_ptr<WlrHardware> hardware;
};

TEST_F(WlrHardwareTest, writesRampsOfTheOutputsOwnSizeAndGivesTheOutputUpAfterwards) {
    for (const std::uint32_t size : {256U, 1024U, 4096U}) {
        std::filesystem::create_directory(edids / "card1-HEADLESS-1");
        writeText(edids / "card1-HEADLESS-1/edid", "EDID");
        start(2, size);
        const std::vector<Head> heads = headsOf(*hardware);
        ASSERT_EQ(heads.size(), 2U);
        EXPECT_EQ(heads[0].connector, kOutput);
        EXPECT_EQ(heads[0].edid, (std::vector<std::uint8_t>{'E', 'D', 'I', 'D'}));
        EXPECT_TRUE(heads[1].edid.empty());
        EXPECT_GT(heads[0].bounds.width, 0);

        EXPECT_TRUE(write(*hardware, heads[0].crtc, true));
        EXPECT_EQ(headsOf(*hardware)[0].rampSize, size);
        EXPECT_TRUE(holds(kOutput, fallingRamp(size)));
        EXPECT_TRUE(holds("HEADLESS-2", std::nullopt));
        Ramp read(size);
        EXPECT_TRUE(hardware->readRamp(heads[0].crtc, read));
        EXPECT_EQ(read, fallingRamp(size));
        EXPECT_TRUE(write(*hardware, heads[0].crtc, false));
        EXPECT_TRUE(holds(kOutput, std::nullopt));
    }
}

// This compositor takes an output from whoever has it and tells the newcomer nothing.
TEST_F(WlrHardwareTest, takesAnOutputThatAnotherHasAndTellsOfOneThatWasTaken) {
    start();
    const std::uint32_t crtc = headsOf(*hardware)[0].crtc;
    EXPECT_TRUE(write(*hardware, crtc, true));
    const auto other = open();
    EXPECT_TRUE(write(*other, headsOf(*other)[0].crtc, true));
    EXPECT_TRUE(holds(kOutput, fallingRamp(256)));
    EXPECT_TRUE(headsOf(*hardware)[0].heldByOther);
    EXPECT_FALSE(write(*hardware, crtc, true));
    // Switched off and on again it is asked for at once.
    EXPECT_TRUE(write(*hardware, crtc, false));
    EXPECT_FALSE(headsOf(*hardware)[0].heldByOther);
    EXPECT_TRUE(write(*hardware, crtc, true));
}

TEST_F(WlrHardwareTest, followsOutputsThatComeAndGo) {
    start();
    EXPECT_TRUE(write(*hardware, headsOf(*hardware)[0].crtc, true));
    sway->tell({"create_output"});
    EXPECT_TRUE(waitUntil([&] { return headsOf(*hardware).size() == 2; }));
    const std::uint32_t newcomer = headsOf(*hardware)[1].crtc;
    EXPECT_TRUE(write(*hardware, newcomer, true));
    EXPECT_TRUE(holds("HEADLESS-2", fallingRamp(256)));
    sway->tell({"output", "HEADLESS-2", "disable"});
    EXPECT_TRUE(waitUntil([&] { return headsOf(*hardware).size() == 1; }));
    Ramp ramp(256);
    EXPECT_FALSE(hardware->readRamp(newcomer, ramp));
    EXPECT_FALSE(hardware->writeRamp(newcomer, ramp));
    EXPECT_TRUE(holds(kOutput, fallingRamp(256)));
}

TEST_F(WlrHardwareTest, noticesTheCompositorsEnd) {
    start();
    const std::uint32_t crtc = headsOf(*hardware)[0].crtc;
    sway->kill();
    std::vector<Head> heads;
    EXPECT_TRUE(waitUntil([&] {
        hardware->topologyGeneration();
        return hardware->compositor().isLost();
    }));
    EXPECT_FALSE(hardware->listHeads(heads));
    EXPECT_FALSE(hardware->writeRamp(crtc, fallingRamp(256)));
}

} // namespace
} // namespace nocturo
