// Re-application runs for as long as the effect is on, so it must not allocate.

#include "display/screen_controller.h"
#include "effects/effect_registry.h"
#include "effects/group_effect.h"
#include "platform/displays/display_functions.h"
#include "platform/displays/ramp_display_services.h"
#include "platform/notification_center.h"
#include "platform/settings/defaults_store.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {

long allocations = 0;

} // namespace

void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace nocturo {
namespace {

struct OneDisplay : GammaHardware {
    std::string_view name() const override { return "one"; }
    std::uint64_t topologyGeneration() override { return 1; }
    bool listHeads(std::vector<Head>& heads) override {
        heads.resize(1);
        heads[0].rampSize = 1024;
        return true;
    }
    bool readRamp(std::uint32_t, Ramp& ramp) override {
        ramp = identityRamp(1024);
        return true;
    }
    bool writeRamp(std::uint32_t, const Ramp&) override { return true; }
};

TEST(Allocation, UpdateEffectAllocatesNothing) {
    NotificationCenter center;
    NDEffect::setUserDefaults(std::make_shared<DefaultsStore>(center));
    const auto group = std::make_shared<NDGroupEffect>();
    for (const SelectableEffect& effect : selectableEffects()) {
        group->addEffect(effect.className);
    }
    RampDisplayServices services(std::make_unique<OneDisplay>());
    setDisplayServices(&services);
    NDScreenController controller(group, services.onlineDisplays()->front().id);
    const long before = allocations;
    controller.updateEffect();
    EXPECT_EQ(allocations, before);
    setDisplayServices(nullptr);
    NDEffect::setUserDefaults(nullptr);
}

} // namespace
} // namespace nocturo
