#pragma once

#include "displays/display_functions.h"
#include "displays/ramp_display_services.h"
#include "displays/screen_controller.h"
#include "effects/invert_effect.h"
#include "settings_fixture.h"

#include <algorithm>
#include <functional>
#include <map>

namespace nocturo {

/// A ramp that is no straight line, so that resampling it there and back would show, and another
/// one for every number.
inline Ramp colors(std::uint32_t number, std::uint32_t size = 256) {
    Ramp ramp(size);
    for (std::uint32_t i = 0; i < size; ++i) {
        const std::uint32_t value = number * 2654435761U * (i + 1);
        ramp.red[i] = static_cast<std::uint16_t>(value >> 16);
        ramp.green[i] = static_cast<std::uint16_t>(value >> 8);
        ramp.blue[i] = static_cast<std::uint16_t>(value);
    }
    return ramp;
}

inline Ramp reversed(Ramp ramp) {
    for (auto* channel : {&ramp.red, &ramp.green, &ramp.blue}) {
        std::reverse(channel->begin(), channel->end());
    }
    return ramp;
}

/// Hardware whose heads and ramps a test changes at will, and which records every write.
class FakeGammaHardware : public GammaHardware {
  public:
    /// Adds a head with a ramp of that size; the CRTC keeps a ramp that it has.
    void add(const std::string& connector, std::uint32_t crtc, std::uint32_t size = 256) {
        Head head;
        head.connector = connector;
        head.crtc = crtc;
        head.rampSize = size;
        head.bounds = {100.0 * static_cast<double>(heads.size()), 0, 100, 100};
        head.modeGeneration = ++modes;
        heads.push_back(head);
        if (isUsableRampSize(size)) {
            ramps.try_emplace(crtc, identityRamp(size));
        }
        ++generation;
    }
    /// Heads D1, D2 and so on, each with the CRTC of its number, until there are that many.
    void addUpTo(std::uint32_t count) {
        while (heads.size() < count) {
            ++numbered;
            add("D" + std::to_string(numbered), numbered);
        }
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

    std::string_view name() const override { return "fake"; }
    std::uint64_t topologyGeneration() override { return generation; }
    bool listHeads(std::vector<Head>& listed) override {
        listed = heads;
        return lists;
    }
    bool readRamp(std::uint32_t crtc, Ramp& ramp) override {
        if (reads) {
            ramp = ramps.at(crtc);
        }
        if (const auto then = std::exchange(afterRead, nullptr)) {
            then();
        }
        return reads;
    }
    bool writeRamp(std::uint32_t crtc, const Ramp& ramp) override {
        Ramp& shown = ramps[crtc] = ramp;
        for (auto* channel : {&shown.red, &shown.green, &shown.blue}) {
            std::for_each(channel->begin(), channel->end(),
                          [&](auto& entry) { entry &= keptBits; });
        }
        writes.emplace_back(crtc, ramp);
        writesNotProvidedFor += kept.count(crtc) == 0 ? 1 : 0;
        return true;
    }
    void keepSystemRamp(std::uint32_t crtc, const Ramp& ramp) override { kept[crtc] = ramp; }

    std::vector<Head> heads;
    std::map<std::uint32_t, Ramp> ramps; // by CRTC
    std::vector<std::pair<std::uint32_t, Ramp>> writes;
    std::map<std::uint32_t, Ramp> kept; // what each CRTC is to be given back
    int writesNotProvidedFor = 0;       // before it was said what to give back
    std::uint64_t generation = 1;
    std::uint64_t modes = 0;         // set so far
    std::uint32_t numbered = 0;      // D1 and so on
    std::function<void()> afterRead; // once, when set
    bool lists = true;
    bool reads = true;
    std::uint16_t keptBits = 0xFFFF; // of every entry that is written
};

/// Display services over hardware in memory.
struct DisplayServicesFixture : SettingsFixture {
    ~DisplayServicesFixture() override { setDisplayServices(nullptr); }

    /// Starts the services on what the hardware shows now.
    void start(std::unique_ptr<CalibrationSource> calibrations = nullptr,
               RunLoop* runLoop = nullptr) {
        services_ = std::make_unique<RampDisplayServices>(std::move(ownedHardware_),
                                                          std::move(calibrations), runLoop);
        setDisplayServices(services_.get());
    }
    void add(const std::string& connector, std::uint32_t crtc, const Ramp& ramp) {
        hardware_.add(connector, crtc, static_cast<std::uint32_t>(ramp.size()));
        hardware_.ramps[crtc] = ramp;
    }
    CGDirectDisplayID id(std::size_t index) { return services_->onlineDisplays()->at(index).id; }
    CGDirectDisplayID id(const std::string& connector) {
        const auto& all = *services_->onlineDisplays();
        return std::find_if(all.begin(), all.end(),
                            [&](const auto& each) { return each.name == connector; })
            ->id;
    }
    static std::unique_ptr<NDScreenController> inverting(CGDirectDisplayID display) {
        return NDScreenController::screenControllerWithEffect(std::make_shared<NDInvertEffect>(),
                                                              display);
    }

    std::unique_ptr<FakeGammaHardware> ownedHardware_ = std::make_unique<FakeGammaHardware>();
    FakeGammaHardware& hardware_ = *ownedHardware_;
    std::unique_ptr<RampDisplayServices> services_;
};

} // namespace nocturo
