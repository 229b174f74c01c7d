#pragma once

#include "platform/displays/gamma_hardware.h"

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace nocturo {

/// Gamma hardware whose heads and ramps a test changes at will, and which records every write.
/// Shared with the test, since display services own their hardware.
struct FakeGammaHardwareState {
    std::vector<Head> heads;
    std::map<std::uint32_t, Ramp> ramps; // by CRTC
    std::vector<std::pair<std::uint32_t, Ramp>> writes;
    std::map<std::uint32_t, Ramp> kept; // what each CRTC is to be given back
    std::uint64_t generation = 1;
    std::uint64_t modes = 0;         // set so far
    int writesNotProvidedFor = 0;    // before it was said what to give back
    std::function<void()> afterRead; // when set
    bool lists = true;
    bool reads = true;
    int keptBits = 16; // of every entry that is written

    /// Adds a head on a CRTC of its own with a ramp of that size.
    void add(const std::string& connector, std::uint32_t crtc, std::uint32_t size = 256) {
        Head head;
        head.connector = connector;
        head.crtc = crtc;
        head.rampSize = size;
        head.bounds = {100.0 * static_cast<double>(heads.size()), 0, 100, 100};
        head.modeGeneration = ++modes;
        heads.push_back(head);
        if (isUsableRampSize(size) && ramps.count(crtc) == 0) {
            ramps[crtc] = identityRamp(size);
        }
        ++generation;
    }
    /// Sets the same mode again.
    void setMode(const std::string& connector) {
        for (Head& head : heads) {
            if (head.connector == connector) {
                head.modeGeneration = ++modes;
            }
        }
        ++generation;
    }
    void remove(const std::string& connector) {
        std::erase_if(heads, [&](const Head& head) { return head.connector == connector; });
        ++generation;
    }
};

class FakeGammaHardware : public GammaHardware {
  public:
    explicit FakeGammaHardware(FakeGammaHardwareState& state) : state_(state) {}

    std::string_view name() const override { return "fake"; }
    std::uint64_t topologyGeneration() override { return state_.generation; }
    bool listHeads(std::vector<Head>& heads) override {
        heads = state_.heads;
        return state_.lists;
    }
    bool readRamp(std::uint32_t crtc, Ramp& ramp) override {
        if (state_.reads) {
            ramp = state_.ramps.at(crtc);
        }
        if (state_.afterRead) {
            state_.afterRead();
        }
        return state_.reads;
    }
    bool writeRamp(std::uint32_t crtc, const Ramp& ramp) override {
        Ramp& kept = state_.ramps[crtc] = ramp;
        const auto mask = static_cast<std::uint16_t>(0xFFFF0000U >> state_.keptBits);
        for (auto* channel : {&kept.red, &kept.green, &kept.blue}) {
            for (std::uint16_t& entry : *channel) {
                entry &= mask;
            }
        }
        state_.writes.emplace_back(crtc, ramp);
        state_.writesNotProvidedFor += state_.kept.count(crtc) == 0 ? 1 : 0;
        return true;
    }
    void keepSystemRamp(std::uint32_t crtc, const Ramp& ramp) override { state_.kept[crtc] = ramp; }

  private:
    FakeGammaHardwareState& state_;
};

} // namespace nocturo
