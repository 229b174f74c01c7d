// The effects on one curve, and the plain copy of a curve that they are measured against.

#include "base/notification_center.h"
#include "effects/effect_registry.h"
#include "effects/group_effect.h"
#include "figures.h"
#include "settings/defaults_store.h"

#include <benchmark/benchmark.h>

#include <map>
#include <memory>
#include <string>

namespace nocturo {

namespace {

ZQGammaCurve identityCurve() {
    ZQGammaCurve curve;
    curve.sampleCount = 256;
    for (std::size_t i = 0; i < 256; ++i) {
        curve.redTable[i] = curve.greenTable[i] = curve.blueTable[i] =
            static_cast<float>(i) / 255.0F;
    }
    return curve;
}

void copyCurve(benchmark::State& state) {
    ZQGammaCurve curve = identityCurve();
    for (auto _ : state) {
        benchmark::DoNotOptimize(curve);
        ZQGammaCurve copy = curve;
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(copyCurve);

void applyAllFiveEffects(benchmark::State& state) {
    NotificationCenter center;
    NDEffect::setUserDefaults(std::make_shared<DefaultsStore>(center));
    NDGroupEffect::initialize(); // each run has a store of its own
    NDGroupEffect group;
    for (const SelectableEffect& effect : selectableEffects()) {
        group.addEffect(effect.className);
    }
    if (group.effectCount() != selectableEffects().size()) {
        state.SkipWithError("the effects are not selected");
    }
    const ZQGammaCurve own = identityCurve();
    for (auto _ : state) {
        ZQGammaCurve curve = own;
        group.applyEffectOnGammaCurve(&curve, 0.0);
        benchmark::DoNotOptimize(curve);
    }
    NDEffect::setUserDefaults(nullptr);
}
BENCHMARK(applyAllFiveEffects);

/// Shows the usual table and keeps the medians.
class MedianKeeper : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.aggregate_name == "median") {
                medians[run.run_name.function_name] = run.GetAdjustedCPUTime();
            }
        }
    }
    std::map<std::string, double> medians; // ns
};

} // namespace

} // namespace nocturo

int main(int argc, char* argv[]) {
    std::vector<char*> arguments(argv, argv + argc);
    char repetitions[] = "--benchmark_repetitions=9";
    char aggregates[] = "--benchmark_report_aggregates_only=true";
    arguments.insert(arguments.end(), {repetitions, aggregates});
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    nocturo::MedianKeeper keeper;
    benchmark::RunSpecifiedBenchmarks(&keeper);
    const double all = keeper.medians["applyAllFiveEffects"];
    nocturo::printFigure("all five effects on a curve", all / 1000.0, 2.0, "us");
    nocturo::printFigure("the same in plain copies of the curve", all / keeper.medians["copyCurve"],
                         20.0, "x");
    return 0;
}
