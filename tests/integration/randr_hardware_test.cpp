#include "base/log.h"
#include "displays/x11/randr_hardware.h"
#include "rig/wait.h"
#include "rig/x_client.h"
#include "rig/x_server.h"

#include <gtest/gtest.h>

using namespace nocturo;

using rig::XServer;

TEST(RandrHardware, ListsTheLitOutputsAndReachesTheirRamps) {
    XServer server{3};
    rig::XClient client{server.display()};
    const auto connection = XConnection::open(server.display());
    const auto hardware = RandrHardware::open(connection.get()).value();
    const auto heads = [&] {
        std::vector<Head> listed;
        EXPECT_TRUE(hardware->listHeads(listed));
        return listed;
    };
    const std::vector<std::uint8_t> edid{0, 255, 255, 255, 255, 255, 255, 0, 1, 2, 3, 4, 5};
    client.setEdid("DUMMY1", edid);
    server.switchOn(2, 40, 200);
    const std::vector<Head> found = heads();
    const auto generation = hardware->topologyGeneration();
    ASSERT_EQ(found.size(), 3U);
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_EQ(found[i].connector, "DUMMY" + std::to_string(i));
        EXPECT_EQ(found[i].crtc, client.crtcOf(found[i].connector));
        EXPECT_EQ(found[i].rampSize, 256U);
        EXPECT_EQ(found[i].edid, i == 1 ? edid : std::vector<std::uint8_t>{});
        EXPECT_EQ(found[i].primary, i == 0);
        EXPECT_EQ(found[i].bounds.x, i == 2 ? 40 : static_cast<int>(i) * XServer::kWidth);
        EXPECT_EQ(found[i].bounds.y, i == 2 ? 200 : 0);
        EXPECT_EQ(found[i].bounds.width, XServer::kWidth);
        EXPECT_EQ(found[i].bounds.height, XServer::kHeight);
    }

    Ramp ramp(256);
    ASSERT_TRUE(hardware->readRamp(found[1].crtc, ramp));
    std::swap(ramp.red[7], ramp.blue[9]);
    ASSERT_TRUE(hardware->writeRamp(found[0].crtc, ramp));
    EXPECT_TRUE(rig::waitUntil([&] {
        return client.ramp(found[0].crtc) == (rig::Channels{ramp.red, ramp.green, ramp.blue});
    }));
    EXPECT_EQ(hardware->topologyGeneration(), generation) << "a ramp is no change of the heads";
    Ramp wrongSize(255);
    EXPECT_FALSE(hardware->readRamp(found[0].crtc, wrongSize));
    EXPECT_EQ(heads().size(), 3U);
    EXPECT_FALSE(hardware->writeRamp(found[0].crtc, wrongSize));

    // A CRTC that vanished is told of once.
    int warnings = 0;
    setLogSink([&](LogLevel level, auto, auto) { warnings += level == LogLevel::warning; });
    EXPECT_FALSE(hardware->readRamp(0x7fffff, ramp));
    EXPECT_TRUE(hardware->writeRamp(0x7fffff, ramp));
    EXPECT_TRUE(hardware->writeRamp(0x7fffff, ramp));
    // The answer to a question brings everything before it along.
    EXPECT_EQ(heads().size(), 3U);
    connection->processEvents();
    setLogSink([](LogLevel, std::string_view, std::string_view) {});
    EXPECT_EQ(warnings, 1);
    EXPECT_FALSE(connection->isLost());
}
