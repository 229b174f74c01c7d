#include "platform/displays/randr/randr_hardware.h"
#include "platform/log.h"
#include "rig/x_client.h"
#include "rig/x_server.h"

#include <gtest/gtest.h>

#include <csignal>

#include <poll.h>

namespace nocturo {
namespace {

using rig::Channels;
using rig::XClient;
using rig::XServer;

std::unique_ptr<RandrHardware> openHardware(const std::string& display) {
    RandrOpening opening = RandrHardware::open(display);
    EXPECT_EQ(opening.result, RandrOpening::Result::opened);
    return std::move(opening.hardware);
}

/// Three channels without any symmetry, so that no mix-up of them or of their order goes unseen.
Channels unevenRamp(std::size_t size) {
    Channels channels;
    unsigned value = 1;
    for (auto& channel : channels) {
        for (std::size_t i = 0; i < size; ++i) {
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

std::vector<std::string> connectors(RandrHardware& hardware) {
    std::vector<Head> heads;
    EXPECT_TRUE(hardware.listHeads(heads));
    std::vector<std::string> names;
    for (const auto& head : heads) {
        names.push_back(head.connector);
    }
    return names;
}

/// Waits for the server to say something and tells whether the generation is another then.
bool generationMovesOn(RandrHardware& hardware, std::uint64_t before) {
    return rig::waitUntil([&] {
        pollfd source{hardware.descriptor(), POLLIN, 0};
        poll(&source, 1, 10);
        return hardware.topologyGeneration() != before;
    });
}

TEST(RandrHardware, listsTheLitOutputsInTheServersOrder) {
    XServer server(3);
    const std::vector<std::uint8_t> edid{0, 255, 255, 255, 255, 255, 255, 0, 1, 2, 3, 4, 5};
    server.setEdid(1, edid);
    server.switchOn(2, 40, 200);
    XClient client(server.display());
    const auto hardware = openHardware(server.display());

    std::vector<Head> heads;
    ASSERT_TRUE(hardware->listHeads(heads));
    ASSERT_EQ(heads.size(), 3u);
    for (std::size_t i = 0; i < heads.size(); ++i) {
        EXPECT_EQ(heads[i].connector, "DUMMY" + std::to_string(i));
        EXPECT_EQ(heads[i].crtc, client.crtcOf(heads[i].connector));
        EXPECT_EQ(heads[i].rampSize, client.rampSize(heads[i].crtc));
        EXPECT_EQ(heads[i].edid, i == 1 ? edid : std::vector<std::uint8_t>{});
        EXPECT_EQ(heads[i].primary, i == 0);
        EXPECT_EQ(heads[i].bounds.width, XServer::kWidth);
        EXPECT_EQ(heads[i].bounds.height, XServer::kHeight);
    }
    EXPECT_EQ(heads[1].bounds.x, XServer::kWidth);
    EXPECT_EQ(heads[2].bounds.x, 40);
    EXPECT_EQ(heads[2].bounds.y, 200);
}

TEST(RandrHardware, readsAndWritesEveryBitOfARamp) {
    XServer server(2);
    XClient client(server.display());
    const auto hardware = openHardware(server.display());
    const auto first = client.crtcOf("DUMMY0");
    const auto second = client.crtcOf("DUMMY1");

    Ramp untouched(256);
    ASSERT_TRUE(hardware->readRamp(first, untouched));
    for (unsigned i = 0; i < 256; ++i) {
        ASSERT_EQ(untouched.green[i], 256 * i);
    }

    const Channels uneven = unevenRamp(256);
    client.setRamp(second, uneven);
    Ramp read(256);
    ASSERT_TRUE(hardware->readRamp(second, read));
    EXPECT_EQ(read, asRamp(uneven));

    ASSERT_TRUE(hardware->writeRamp(first, read));
    EXPECT_TRUE(rig::waitUntil([&] { return client.ramp(first) == uneven; }));

    Ramp wrongSize(255);
    EXPECT_FALSE(hardware->readRamp(first, wrongSize));
    EXPECT_EQ(connectors(*hardware).size(), 2u);
    EXPECT_FALSE(hardware->writeRamp(first, wrongSize));
}

TEST(RandrHardware, followsOutputsThatGoAndCome) {
    XServer server(3);
    XClient client(server.display());
    const auto hardware = openHardware(server.display());
    const auto crtc = client.crtcOf("DUMMY1");
    using Names = std::vector<std::string>;
    ASSERT_EQ(connectors(*hardware), (Names{"DUMMY0", "DUMMY1", "DUMMY2"}));

    auto generation = hardware->topologyGeneration();
    server.switchOff(1);
    EXPECT_TRUE(generationMovesOn(*hardware, generation));
    EXPECT_EQ(connectors(*hardware), (Names{"DUMMY0", "DUMMY2"}));

    // The CRTC that is off takes a ramp and shows it when it is on again.
    const Channels uneven = unevenRamp(256);
    EXPECT_TRUE(hardware->writeRamp(crtc, asRamp(uneven)));
    generation = hardware->topologyGeneration();
    EXPECT_TRUE(rig::waitUntil([&] { return client.ramp(crtc) == uneven; }));
    EXPECT_EQ(hardware->topologyGeneration(), generation) << "a ramp is no change of the heads";

    server.switchOn(1);
    EXPECT_TRUE(generationMovesOn(*hardware, generation));
    EXPECT_EQ(connectors(*hardware), (Names{"DUMMY0", "DUMMY1", "DUMMY2"}));
    EXPECT_EQ(client.ramp(crtc), uneven);

    // Switched off and on again between two looks: all seems the same, but the ramp may not be.
    std::vector<Head> before;
    std::vector<Head> after;
    ASSERT_TRUE(hardware->listHeads(before));
    generation = hardware->topologyGeneration();
    server.switchOff(1);
    server.switchOn(1);
    EXPECT_TRUE(generationMovesOn(*hardware, generation));
    ASSERT_TRUE(hardware->listHeads(after));
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(after[i].bounds, before[i].bounds);
        EXPECT_EQ(after[i].modeGeneration != before[i].modeGeneration, i == 1);
    }

    generation = hardware->topologyGeneration();
    server.setEdid(0, {1, 2, 3});
    EXPECT_TRUE(generationMovesOn(*hardware, generation));
}

TEST(RandrHardware, survivesACrtcThatVanished) {
    XServer server(1);
    const auto hardware = openHardware(server.display());
    int warnings = 0;
    setLogSink([&](LogLevel level, auto, auto) { warnings += level == LogLevel::warning; });
    Ramp ramp(256);
    EXPECT_FALSE(hardware->readRamp(0x7fffff, ramp));
    EXPECT_TRUE(hardware->writeRamp(0x7fffff, ramp));
    EXPECT_TRUE(hardware->writeRamp(0x7fffff, ramp));
    // The answer to a question brings everything before it along.
    EXPECT_EQ(connectors(*hardware).size(), 1u);
    hardware->processEvents();
    setLogSink([](LogLevel, std::string_view, std::string_view) {});
    EXPECT_EQ(warnings, 1);
    EXPECT_FALSE(hardware->connectionLost());
}

TEST(RandrHardware, noticesThatTheServerIsGone) {
    XServer server(2);
    const auto hardware = openHardware(server.display());
    std::vector<Head> heads;
    ASSERT_TRUE(hardware->listHeads(heads));
    const auto crtc = heads.front().crtc;
    const auto generation = hardware->topologyGeneration();
    server.kill();
    pollfd source{hardware->descriptor(), POLLIN, 0};
    EXPECT_EQ(poll(&source, 1, 5000), 1);
    EXPECT_NE(hardware->topologyGeneration(), generation);
    EXPECT_TRUE(hardware->connectionLost());
    Ramp ramp(256);
    EXPECT_FALSE(hardware->writeRamp(crtc, ramp));
    EXPECT_FALSE(hardware->readRamp(crtc, ramp));
    EXPECT_FALSE(hardware->listHeads(heads));
    EXPECT_TRUE(heads.empty());

    const RandrOpening opening = RandrHardware::open(server.display());
    EXPECT_EQ(opening.result, RandrOpening::Result::unreachable);
    EXPECT_EQ(RandrHardware::open("").result, RandrOpening::Result::unreachable);
}

TEST(RandrHardware, readsTheZeroesThatSomeServersBeginWith) {
    const std::string display = rig::freeDisplay();
    rig::Process server("Xvfb", {display, "-displayfd", "1", "-nolisten", "tcp"},
                        rig::cleanEnvironment());
    if (!server.readLine()) {
        GTEST_SKIP() << server.errors();
    }
    const auto hardware = openHardware(display);
    std::vector<Head> heads;
    ASSERT_TRUE(hardware->listHeads(heads));
    Ramp ramp = asRamp(unevenRamp(256));
    ASSERT_TRUE(hardware->readRamp(heads.at(0).crtc, ramp));
    EXPECT_EQ(ramp, Ramp(256));
    server.signal(SIGTERM); // cleans up behind itself, which a killed one could not
    server.wait();
}

} // namespace
} // namespace nocturo
