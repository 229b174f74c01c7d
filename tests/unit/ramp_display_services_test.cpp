#include "displays/ramp_display_services.h"

#include "display_services_fixture.h"
#include "displays/display_gamma.h"
#include "displays/edid.h"
#include "displays/kernel_edid.h"
#include "temporary_directory.h"

#include <array>
#include <cmath>
#include <numeric>

using namespace nocturo;

TEST(Ramp, EverySixteenBitValueSurvivesReadingAndWriting) {
    std::vector<std::uint16_t> channel(65536);
    std::iota(channel.begin(), channel.end(), std::uint16_t{0});
    std::vector<float> table(65536);
    tableFromChannel(channel, 65536, table.data());
    EXPECT_EQ(table[13107], 0.2F);
    std::vector<std::uint16_t> written(65536);
    channelFromTable(table.data(), 65536, written);
    EXPECT_EQ(written, channel);
}

TEST(Ramp, ValuesAreRoundedAndWhatIsOutOfRangeIsLimited) {
    const float table[] = {-0.1F,          1.5F,           std::nanf(""), 0.5F,
                           100.4F / 65535, 100.6F / 65535, INFINITY};
    std::vector<std::uint16_t> channel(7);
    channelFromTable(table, 7, channel);
    EXPECT_EQ(channel, (std::vector<std::uint16_t>{0, 65535, 0, 32768, 100, 101, 65535}));
}

TEST(Ramp, ResamplingKeepsTheEndsAndInterpolatesBetween) {
    float table[5];
    tableFromChannel({0, 65535}, 5, table);
    for (int i = 0; i < 5; ++i) {
        EXPECT_FLOAT_EQ(table[i], static_cast<float>(i) / 4);
    }
    std::vector<std::uint16_t> channel(3);
    const float curve[] = {1.0F, 0.25F, 0.5F, 0.75F};
    channelFromTable(curve, 4, channel); // the middle lies half-way between entries 1 and 2
    EXPECT_EQ(channel, (std::vector<std::uint16_t>{65535, 24576, 49151}));
}

using Displays = DisplayServicesFixture;

TEST_F(Displays, RampsOfEverySizeAreWrittenBackBitForBitAndAnAllZeroOneAsTheIdentity) {
    for (const std::uint32_t size : {2U, 255U, 256U, 1024U, 4096U, 65535U, 262145U}) {
        add("size " + std::to_string(size), size, colors(7, size));
    }
    add("zero", 1, Ramp(256));
    start();
    auto before = hardware_.ramps;
    for (const DisplayInfo& display : *services_->onlineDisplays()) {
        auto controller = inverting(display.id);
        EXPECT_NE(hardware_.ramps, before);
        controller->restoreGamma();
        if (display.name == "zero") {
            before[1] = identityRamp(256);
        }
        EXPECT_EQ(hardware_.ramps, before);
    }
}

TEST_F(Displays, OneWithoutAUsableRampIsListedButNeverTouched) {
    hardware_.add("none", 1, 0);
    hardware_.add("one", 2, 1);
    hardware_.add("absurd", 3, 5000000);
    hardware_.add("good", 4);
    start();
    EXPECT_EQ(services_->onlineDisplays()->at(2).rampSize, 0U);
    for (std::size_t i = 0; i < 4; ++i) {
        const auto controller = inverting(id(i));
        EXPECT_EQ(controller->hasCurve(), i == 3);
        controller->restoreGamma();
        EXPECT_EQ(ZQDisplayGammaIsInverted(id(i)), i == 3 ? 0 : -1);
    }
    EXPECT_EQ(ZQDisplayGammaCurve(12345).sampleCount, 0U);
    EXPECT_EQ(hardware_.writes.size(), 2U);
}

TEST_F(Displays, UpdatesDoNotAccumulateAndWhatCannotBeReadIsLeftAlone) {
    add("A", 1, colors(7));
    start();
    auto controller = inverting(id(0));
    controller->updateEffect();
    EXPECT_EQ(hardware_.ramps[1], reversed(colors(7)));
    hardware_.reads = false;
    controller->retriveGammaCurve();
    hardware_.writes.clear();
    controller->updateEffect();
    controller->restoreGamma();
    EXPECT_TRUE(hardware_.writes.empty());
}

TEST_F(Displays, TwoThatShareACrtcDoNotConfuseEachOther) {
    add("A", 1, colors(7));
    hardware_.add("B", 1);
    start();
    const std::array both = {id("A"), id("B")};
    EXPECT_EQ(services_->takeBackDisturbedDisplays(both), 0U); // nothing was written yet
    auto a = inverting(id("A"));
    auto b = inverting(id("B")); // must not capture what was written for A
    EXPECT_EQ(hardware_.ramps[1], reversed(colors(7)));
    hardware_.ramps[1] = colors(8);
    EXPECT_EQ(services_->takeBackDisturbedDisplays(both), 1U);
    EXPECT_EQ(hardware_.ramps[1], reversed(colors(7)));
    a->restoreGamma();
    EXPECT_EQ(hardware_.ramps[1], colors(7));
    b->updateEffect();
    a = inverting(id("A"));
    EXPECT_EQ(hardware_.ramps[1], reversed(colors(7)));
    services_->restoreSystemColors();
    EXPECT_EQ(hardware_.ramps[1], colors(7));
}

TEST_F(Displays, OneAloneIsTheMainDisplay) {
    for (const char* connector : {"A", "B", "C"}) {
        hardware_.add(connector, 1);
    }
    const auto main = [&] {
        std::string names;
        for (const DisplayInfo& info : *services_->onlineDisplays()) {
            names += info.main ? info.name : "";
        }
        return names;
    };
    start();
    EXPECT_EQ(main(), "A"); // where the hardware names none
    hardware_.heads[1].primary = hardware_.heads[2].primary = true;
    ++hardware_.generation;
    EXPECT_EQ(main(), "B");
}

TEST_F(Displays, EachIsGivenBackWhatItHadWhenFirstSeen) {
    add("A", 1, colors(1));
    add("B", 2, colors(2));
    start();
    auto a = inverting(id("A"));
    auto b = inverting(id("B"));
    hardware_.remove("A"); // and comes back on a CRTC of another size
    hardware_.add("A", 3, 1024);
    a->updateEffect();
    EXPECT_EQ(hardware_.ramps[3].size(), 1024U);
    hardware_.remove("B"); // its CRTC goes dark but keeps its ramp
    services_->restoreSystemColors();
    EXPECT_EQ(hardware_.ramps[1], colors(1));
    EXPECT_EQ(hardware_.ramps[2], colors(2));
    EXPECT_EQ(hardware_.ramps[3].red[341], colors(1).red[85]);
}

using Edid = std::vector<std::uint8_t>;
using Monitor = std::pair<std::string, Edid>; // its connector and itself

Edid edid(std::uint8_t product, std::uint32_t serial, const std::string& serialText = "") {
    Edid block = {0, 255, 255, 255, 255, 255, 255, 0, 0x10, 0xAC, product, 1};
    for (int shift = 0; shift < 32; shift += 8) {
        block.push_back(static_cast<std::uint8_t>(serial >> shift));
    }
    block.resize(128);
    if (!serialText.empty()) {
        block[72 + 3] = 255;
        std::copy(serialText.begin(), serialText.end(), block.begin() + 72 + 5);
    }
    return block;
}

std::vector<CGDirectDisplayID> identify(const std::vector<Monitor>& monitors,
                                        DisplayIdentifiers&& identifiers = {}) {
    std::vector<Head> heads(monitors.size());
    for (std::size_t i = 0; i < heads.size(); ++i) {
        std::tie(heads[i].connector, heads[i].edid) = monitors[i];
    }
    return identifiers.identifiersFor(heads);
}

TEST(DisplayIdentifiers, FollowAMonitorWithASerialAndStayWithTheConnectorOtherwise) {
    const auto idOf = [](const Monitor& monitor) { return identify({monitor}).at(0); };
    EXPECT_EQ(idOf({"DP-1", edid(1, 42)}), idOf({"DP-2", edid(1, 42)}));
    EXPECT_EQ(idOf({"DP-1", edid(1, 0, "SN7\n")}), idOf({"DP-2", edid(1, 0, "SN7\n")}));
    EXPECT_NE(idOf({"DP-1", edid(1, 42)}), idOf({"DP-1", edid(1, 43)}));
    EXPECT_NE(idOf({"DP-1", edid(1, 42)}), idOf({"DP-1", edid(2, 42)}));
    for (const std::uint32_t placeholder : {0U, 0x01010101U, 0xFFFFFFFFU}) {
        EXPECT_NE(idOf({"DP-1", edid(1, placeholder)}), idOf({"DP-2", edid(1, placeholder)}));
    }
    EXPECT_NE(idOf({"DP-1", {}}), idOf({"DP-2", {}}));
    EXPECT_EQ(idOf({"DP-1", {1, 2, 3}}), idOf({"DP-1", {}})); // not an EDID
    // Stored in users' settings, so never to change; FNV-1a of "connector DP-1" worked out apart.
    EXPECT_EQ(idOf({"DP-1", {}}), 915161647U);
}

TEST(DisplayIdentifiers, AreOfTheKernelsMonitorWhateverTheDesktopCallsItsConnector) {
    const TemporaryDirectory connectors;
    std::filesystem::create_directory(connectors / "card1-HDMI-A-1");
    writeText(connectors / "card1-HDMI-A-1/edid", "EDID");
    for (const char* name : {"HDMI-A-1", "HDMI-1"}) {
        EXPECT_EQ(kernelEdid(connectors.path(), name), (Edid{'E', 'D', 'I', 'D'})) << name;
    }
    EXPECT_TRUE(kernelEdid(connectors.path(), "HDMI-2").empty());
}

TEST(MonitorName, IsMakerAndModelAsFarAsTheyAreTold) {
    const TemporaryDirectory directory;
    writeText(directory / "pnp.ids", "ACR\tAcer\nDEL\tDell Inc.\n");
    const auto named = [&](const std::string& model) {
        Edid block = edid(1, 42);
        block[90 + 3] = model.empty() ? 0 : 0xFC;
        std::copy(model.begin(), model.end(), block.begin() + 90 + 5);
        return monitorName(block, directory / "pnp.ids");
    };
    EXPECT_EQ(named("U2720Q\n  "), "Dell Inc. U2720Q");
    EXPECT_EQ(named("DELL U\x1B[2J\n"), "DELL U[2J");
    EXPECT_EQ(named(""), "Dell Inc.");
    EXPECT_EQ(monitorName(edid(1, 42), "/nowhere") + monitorName({1, 2, 3}, "/nowhere"), "");
}

TEST(DisplayIdentifiers, TwinsTakeNeighboursAndKeepThem) {
    DisplayIdentifiers known;
    const auto identified = [&](const std::vector<Monitor>& monitors) {
        return identify(monitors, std::move(known));
    };
    const Edid twin = edid(1, 42);
    const auto both = identified({{"DP-1", twin}, {"DP-2", twin}});
    EXPECT_EQ(both[1], both[0] + 1);
    EXPECT_EQ(identified({{"DP-2", twin}}), std::vector{both[1]});
    EXPECT_EQ(identified({{"DP-3", edid(9, 9)}, {"DP-2", twin}, {"DP-1", twin}})[2], both[0]);
}
