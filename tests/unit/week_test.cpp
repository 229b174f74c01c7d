// A week of everything that happens by itself, with whatever users, programs and machines do
// meanwhile, in minutes.

#include "app/effect_state.h"
#include "app/keep_colors.h"
#include "automation/display_looks_setting.h"
#include "automation/schedule_setting.h"
#include "automation_fixture.h"
#include "displays/fading_hardware.h"
#include "effects/dim_effect.h"

#include <malloc.h>
#include <random>

using namespace nocturo;
using namespace std::chrono;

struct WeekTest : RulesTest {
    /// What the services have for themselves, while tests go on with the hardware behind it.
    struct Behind : GammaHardware {
        explicit Behind(GammaHardware& hardware) : real(hardware) {}
        std::string_view name() const override { return real.name(); }
        std::uint64_t topologyGeneration() override { return real.topologyGeneration(); }
        bool listHeads(std::vector<Head>& heads) override { return real.listHeads(heads); }
        bool readRamp(std::uint32_t crtc, Ramp& ramp) override { return real.readRamp(crtc, ramp); }
        bool writeRamp(std::uint32_t crtc, const Ramp& ramp) override {
            return real.writeRamp(crtc, ramp);
        }
        GammaHardware& real;
    };

    WeekTest() {
        controller_.setEffectActive(false, true);
        plain_ = std::exchange(services_, nullptr);
        services_ = std::make_unique<RampDisplayServices>(
            std::make_unique<FadingHardware>(
                std::make_unique<Behind>(hardware_), fades_, runLoop_,
                [this] { return steady_clock::time_point(runLoop_.now()); }),
            nullptr, &runLoop_);
        setDisplayServices(services_.get());
        controller_.setFades(&fades_);
        looks_.save("Warm", {.dim = true, .dimLevel = -0.3F});
    }
    ~WeekTest() override {
        setDisplayServices(nullptr);
        services_.reset();
    }

    unsigned upTo(unsigned most) {
        return std::uniform_int_distribution<unsigned>(0, most)(random_);
    }
    template <typename Choices>
    auto oneOf(const Choices& choices) {
        return *(std::begin(choices) + upTo(static_cast<unsigned>(std::size(choices)) - 1));
    }
    void post(std::string_view name) { center_.post(name); }
    const char* look() { return oneOf(std::array{"Dark", "Turned", "Warm"}); }
    CGDirectDisplayID display() {
        return id(upTo(static_cast<unsigned>(services_->onlineDisplays()->size()) - 1));
    }

    void byHand() {
        switch (upTo(7)) {
        case 0:
            return controller_.toggleGlobalEffect();
        case 1:
            return chooseEffects({oneOf(std::array{"NDInvertEffect", "NDDimEffect"})});
        case 2:
            return NDDimEffect::setLevel(oneOf(std::array{-1.0F, -0.3F}));
        case 3:
            return static_cast<void>(automation_.pause(
                oneOf(std::array{"", "30m", "until next", "until sunset", "3h"})));
        case 4:
            return automation_.resume();
        case 5:
            return upTo(1) == 0 ? automation_.holdPause("make") : automation_.releasePause();
        case 6:
            return question_.keep();
        default:
            return store_->setFloat(oneOf(std::array{0.0F, 0.5F, 5.0F}), kFadeSeconds.key);
        }
    }
    void inSettings() {
        switch (upTo(6)) {
        case 0:
            return store_->setBool(upTo(3) != 0, kUseSchedule);
        case 1:
            return store_->setBool(upTo(3) != 0, kUseRules);
        case 2:
            return static_cast<void>(
                addSchedulePoint(*store_, looks_,
                                 oneOf(std::array{"sunset-00:30 ", "23:00 ", "06:30 ", "dawn "}) +
                                     std::string(oneOf(std::array{"off", look()}))));
        case 3:
            return static_cast<void>(upTo(1) == 0 ? removeSchedulePoint(*store_, upTo(3))
                                                  : removeRule(*store_, upTo(3)));
        case 4:
            return static_cast<void>(
                addRule(*store_, looks_,
                        oneOf(std::array{"fullscreen ", "program film ", "game "}) +
                            std::string(oneOf(std::array{"off", look()}))));
        case 5:
            return static_cast<void>(
                setLookOfDisplay(*store_, looks_, display(), oneOf(std::array{"", "", look()})));
        default:
            return store_->setObject(upTo(1) == 0
                                         ? PropertyArray()
                                         : PropertyArray{static_cast<std::int64_t>(display())},
                                     kAffectedScreenSet);
        }
    }
    void byTheMachine() {
        switch (upTo(5)) {
        case 0: // a display comes or goes
            hardware_.heads.size() > 2 ? hardware_.remove("D3") : hardware_.add("D3", 3);
            return post(NSApplicationDidChangeScreenParametersNotification);
        case 1:
            return hardware_.setMode("D1");
        case 2: // it sleeps
            return clock_.jumpTo(clock_.now() + minutes(upTo(300)));
        case 3:
            return clock_.jumpTo(clock_.now() - minutes(upTo(10)));
        case 4:
            saves_ = !saves_;
            return distributed_.post(saves_ ? kScreenSaverDidStartNotification
                                            : kScreenSaverDidStopNotification);
        default: // a look is made anew
            return static_cast<void>(upTo(1) == 0
                                         ? looks_.remove("Warm")
                                         : looks_.save("Warm", {.dim = true, .dimLevel = -0.3F}));
        }
    }
    void somethingHappens() {
        switch (upTo(3)) {
        case 0:
            return byHand();
        case 1:
            return inSettings();
        case 2:
            return byTheMachine();
        default:
            if (changed_) {
                const auto filled = upTo(2);
                now({{oneOf(std::array{"film", "nocturo", "other"})},
                     filled < 2 ? std::set{id(filled)} : std::set<CGDirectDisplayID>()},
                    upTo(4) == 0);
            }
        }
    }
    void pass(milliseconds time) {
        runLoop_.advance(time.count());
        clock_.passTo(clock_.now() + floor<seconds>(time));
    }
    /// Lets time pass until nothing fades.
    void settle() {
        do {
            pass(1s);
            hardware_.writes.clear();
            runLoop_.advance(100);
        } while (!hardware_.writes.empty());
    }
    const NDScreenController* controllerOf(CGDirectDisplayID display) const {
        const auto& all = controller_.screenControllers();
        for (std::size_t i = 0; all && i < all->size(); ++i) {
            if ((*all)[i]->screenID() == display) {
                return (*all)[i].get();
            }
        }
        return nullptr;
    }
    /// Once nothing is on its way every display shows what its ruling says, and no more.
    void expectExplained() {
        const std::string sentence = stateSentence(controller_, *store_);
        EXPECT_GT(sentence.size(), 2U);
        EXPECT_EQ(sentence.find("null"), std::string::npos) << sentence;
        const auto affected = affectedScreenSet(*store_);
        for (const DisplayInfo& each : std::vector(*services_->onlineDisplays())) {
            const Ruling ruling = controller_.ruling(each.id);
            const bool isAffected =
                affected.empty() || std::ranges::find(affected, each.id) != affected.end();
            const bool isOn = isAffected && ruling.isOn && !controller_.isPausedForScreenSaver();
            const NDScreenController* shown = controllerOf(each.id);
            EXPECT_EQ(shown != nullptr, isOn) << each.name << ' ' << nocturo::told(ruling);
            Ramp wanted = identityRamp(256);
            if (shown != nullptr) {
                EXPECT_EQ(&shown->effect() == controller_.currentEffect().get(),
                          ruling.look.empty());
                ZQGammaCurve curve = shown->gammaCurve();
                shown->effect().applyEffectOnGammaCurve(&curve, 0);
                channelFromTable(curve.redTable.data(), curve.sampleCount, wanted.red);
            }
            const auto crtc = static_cast<std::uint32_t>(each.name.back() - '0');
            EXPECT_EQ(hardware_.ramps.at(crtc).red, wanted.red)
                << each.name << ' ' << sentence << nocturo::told(ruling);
        }
    }
    static std::size_t allocated() { return mallinfo2().uordblks; }

    std::mt19937 random_{1};
    std::unique_ptr<RampDisplayServices> plain_; // owns the hardware
    Fades fades_;
    KeepColors question_{controller_, *store_, center_, runLoop_};
    bool saves_ = false;
};

TEST_F(WeekTest, SoakIsAlwaysExplainedAndLeavesNothingBehind) {
    const Moment start = clock_.now();
    std::size_t afterADay = 0;
    int steps = 0;
    for (auto passed = seconds(0); passed < days(7) && !HasFailure(); ++steps) {
        somethingHappens();
        milliseconds time(upTo(2) == 0 ? upTo(500) : upTo(120000));
        pass(time);
        if (time > 2s) {
            settle();
            expectExplained();
        }
        EXPECT_LE(runLoop_.pendingTimers(), 8U);
        hardware_.writes.clear();
        passed += floor<seconds>(time);
        if (afterADay == 0 && passed > days(1)) {
            afterADay = allocated();
        }
    }
    EXPECT_NE(clock_.now(), start);
    EXPECT_GT(steps, 10000);
    EXPECT_LE(allocated(), afterADay + 256U * 1024U);

    store_->setBool(false, kUseSchedule);
    store_->setBool(false, kUseRules);
    automation_.resume();
    distributed_.post(kScreenSaverDidStopNotification);
    controller_.setEffectActive(false, true);
    pass(20s);
    expectExplained();
    EXPECT_EQ(runLoop_.pendingTimers(), 0U);
    EXPECT_FALSE(clock_.awaited());
    EXPECT_EQ(listening_, 0);
}
