// Re-application runs for as long as the effect is on, so it must not allocate.

#include "display_services_fixture.h"
#include "displays/fading_hardware.h"
#include "effects/effect_registry.h"
#include "fake_run_loop.h"

#include <array>
#include <cstdlib>
#include <new>

using namespace nocturo;

static long allocations = 0;

// Inlined, GCC would take free() for the wrong end of what new gave.
[[gnu::noinline]] void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

struct OneDisplay : FakeGammaHardware {
    explicit OneDisplay(std::uint32_t size) { add("one", 0, size); }
    // Keeps no record of it, which would allocate.
    bool writeRamp(std::uint32_t /*crtc*/, const Ramp& /*ramp*/) override { return true; }
};

TEST_F(SettingsFixture, UpdateEffectAllocatesNothing) {
    const auto group = std::make_shared<NDGroupEffect>();
    Fades fades;
    FakeRunLoop runLoop;
    const std::array<std::uint32_t, 1> crtcs{};
    for (const std::uint32_t size : {256U, 1024U}) {
        auto ownedHardware =
            std::make_unique<FadingHardware>(std::make_unique<OneDisplay>(size), fades, runLoop);
        FadingHardware& hardware = *ownedHardware;
        RampDisplayServices services(std::move(ownedHardware));
        setDisplayServices(&services);
        NDScreenController controller(group, services.onlineDisplays()->front().id);
        const long before = allocations;
        controller.updateEffect(); // nothing selected: the ramp that was read is written back
        EXPECT_EQ(allocations, before);
        for (const SelectableEffect& effect : selectableEffects()) {
            group->addEffect(effect.className);
        }
        ASSERT_EQ(group->effectCount(), 5U);
        const long withEffects = allocations;
        hardware.expectReads(crtcs); // which the timer's comes along with
        controller.updateEffect();
        EXPECT_EQ(allocations, withEffects);
        for (const SelectableEffect& effect : selectableEffects()) {
            group->removeEffect(effect.className);
        }
    }
    setDisplayServices(nullptr);
}
