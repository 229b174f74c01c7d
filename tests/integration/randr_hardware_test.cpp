#include "platform/displays/randr/randr_hardware.h"
#include "platform/log.h"
#include "rig/wait.h"
#include "rig/x_client.h"
#include "rig/x_server.h"

#include <gtest/gtest.h>

#include <csignal>

#include <poll.h>

namespace nocturo {
namespace {

using rig::Channels;
using rig::XServer;
using Names = std::vector<std::string>;

/// Three channels without any symmetry, so that no mix-up of them or of their order goes unseen.
Channels unevenRamp() {
    Channels channels;
    unsigned value = 1;
    for (auto& channel : channels) {
        for (int i = 0; i < 256; ++i) {
            channel.push_back(static_cast<std::uint16_t>(value = value * 40503u + 12345u));
        }
    }
    return channels;
}

Ramp asRamp(const Channels& channels) {
    Ramp ramp;
    std::tie(ramp.red, ramp.green, ramp.blue) = std::tie(channels[0], channels[1], channels[2]);
    return ramp;
}

class RandrHardwareTest : public testing::Test {
  protected:
    std::vector<Head> heads() {
        std::vector<Head> heads;
        EXPECT_TRUE(hardware->listHeads(heads));
        return heads;
    }
    Names connectors() {
        Names names;
        for (const auto& head : heads()) {
            names.push_back(head.connector);
        }
        return names;
    }
    /// Waits for the server to say something that makes the generation another.
    bool generationMovesOn() {
        return rig::waitUntil([&] {
            pollfd source{hardware->descriptor(), POLLIN, 0};
            poll(&source, 1, 10);
            return hardware->topologyGeneration() != generation;
        });
    }

    XServer server{3};
    rig::XClient client{server.display()};
    std::unique_ptr<RandrHardware> hardware = RandrHardware::open(server.display()).hardware;
    std::uint64_t generation = hardware->topologyGeneration();
    const Channels uneven = unevenRamp();
};

TEST_F(RandrHardwareTest, listsTheLitOutputsAndWritesEveryBitOfARamp) {
    const std::vector<std::uint8_t> edid{0, 255, 255, 255, 255, 255, 255, 0, 1, 2, 3, 4, 5};
    client.setEdid("DUMMY1", edid);
    server.switchOn(2, 40, 200);
    EXPECT_EQ(connectors(), (Names{"DUMMY0", "DUMMY1", "DUMMY2"}));
    const std::vector<Head> found = heads();
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_EQ(found[i].crtc, client.crtcOf(found[i].connector));
        EXPECT_EQ(found[i].rampSize, 256U);
        EXPECT_EQ(found[i].edid, i == 1 ? edid : std::vector<std::uint8_t>{});
        EXPECT_EQ(found[i].primary, i == 0);
        EXPECT_EQ(found[i].bounds.x, i == 2 ? 40 : static_cast<int>(i) * XServer::kWidth);
        EXPECT_EQ(found[i].bounds.y, i == 2 ? 200 : 0);
        EXPECT_EQ(found[i].bounds.width, XServer::kWidth);
        EXPECT_EQ(found[i].bounds.height, XServer::kHeight);
    }

    const auto first = client.crtcOf("DUMMY0");
    const auto second = client.crtcOf("DUMMY1");
    client.setRamp(second, uneven);
    Ramp read(256);
    ASSERT_TRUE(hardware->readRamp(second, read));
    EXPECT_EQ(read, asRamp(uneven));
    ASSERT_TRUE(hardware->writeRamp(first, read));
    EXPECT_TRUE(rig::waitUntil([&] { return client.ramp(first) == uneven; }));
    Ramp wrongSize(255);
    EXPECT_FALSE(hardware->readRamp(first, wrongSize));
    EXPECT_EQ(connectors().size(), 3U);
    EXPECT_FALSE(hardware->writeRamp(first, wrongSize));
}

TEST_F(RandrHardwareTest, followsOutputsThatGoAndCome) {
    const auto crtc = client.crtcOf("DUMMY1");
    ASSERT_EQ(connectors(), (Names{"DUMMY0", "DUMMY1", "DUMMY2"}));
    generation = hardware->topologyGeneration();
    server.switchOff(1);
    EXPECT_TRUE(generationMovesOn());
    EXPECT_EQ(connectors(), (Names{"DUMMY0", "DUMMY2"}));

    // The CRTC that is off takes a ramp and shows it when it is on again.
    EXPECT_TRUE(hardware->writeRamp(crtc, asRamp(uneven)));
    generation = hardware->topologyGeneration();
    EXPECT_TRUE(rig::waitUntil([&] { return client.ramp(crtc) == uneven; }));
    EXPECT_EQ(hardware->topologyGeneration(), generation) << "a ramp is no change of the heads";
    server.switchOn(1);
    EXPECT_TRUE(generationMovesOn());
    EXPECT_EQ(connectors(), (Names{"DUMMY0", "DUMMY1", "DUMMY2"}));
    EXPECT_EQ(client.ramp(crtc), uneven);

    // Switched off and on again between two looks: all seems the same, but the ramp may not be.
    const std::vector<Head> before = heads();
    generation = hardware->topologyGeneration();
    server.switchOff(1);
    server.switchOn(1);
    EXPECT_TRUE(generationMovesOn());
    const std::vector<Head> after = heads();
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(after[i].bounds, before[i].bounds);
        EXPECT_EQ(after[i].modeGeneration != before[i].modeGeneration, i == 1);
    }
    generation = hardware->topologyGeneration();
    client.setEdid("DUMMY0", {1, 2, 3});
    EXPECT_TRUE(generationMovesOn());
}

TEST_F(RandrHardwareTest, survivesACrtcThatVanishedAndTheServersEnd) {
    int warnings = 0;
    setLogSink([&](LogLevel level, auto, auto) { warnings += level == LogLevel::warning; });
    Ramp ramp(256);
    EXPECT_FALSE(hardware->readRamp(0x7fffff, ramp));
    EXPECT_TRUE(hardware->writeRamp(0x7fffff, ramp));
    EXPECT_TRUE(hardware->writeRamp(0x7fffff, ramp));
    // The answer to a question brings everything before it along.
    std::vector<Head> known = heads();
    ASSERT_EQ(known.size(), 3U);
    hardware->processEvents();
    setLogSink([](LogLevel, std::string_view, std::string_view) {});
    EXPECT_EQ(warnings, 1);
    EXPECT_FALSE(hardware->connectionLost());

    const auto crtc = known.front().crtc;
    generation = hardware->topologyGeneration();
    server.kill();
    EXPECT_TRUE(generationMovesOn());
    EXPECT_TRUE(hardware->connectionLost());
    EXPECT_FALSE(hardware->writeRamp(crtc, ramp));
    EXPECT_FALSE(hardware->readRamp(crtc, ramp));
    EXPECT_FALSE(hardware->listHeads(known));
    EXPECT_TRUE(known.empty());
    const RandrOpening opening = RandrHardware::open(server.display());
    EXPECT_EQ(opening.result, RandrOpening::Result::unreachable);
    EXPECT_NE(opening.reason.find(server.display()), std::string::npos);
    EXPECT_EQ(RandrHardware::open("").result, RandrOpening::Result::unreachable);
}

TEST(RandrHardware, readsTheZeroesThatSomeServersBeginWith) {
    const std::string display = rig::freeDisplay();
    rig::Process server("Xvfb", {display, "-displayfd", "1", "-nolisten", "tcp"},
                        rig::cleanEnvironment());
    ASSERT_TRUE(server.readLine()) << server.errors();
    const auto hardware = RandrHardware::open(display).hardware;
    std::vector<Head> heads;
    ASSERT_TRUE(hardware->listHeads(heads));
    Ramp ramp = asRamp(unevenRamp());
    ASSERT_TRUE(hardware->readRamp(heads.at(0).crtc, ramp));
    EXPECT_EQ(ramp, Ramp(256));
    server.signal(SIGTERM); // cleans up behind itself, which a killed one could not
    server.wait();
}

} // namespace
} // namespace nocturo
