// SPDX-License-Identifier: GPL-3.0-or-later
// Making pseudo-offspring alone, and whole iterations of both flows, on drawn parents.
// build/release/benchmarks/kaldo_simulation_benchmarks
#include <filesystem>
#include <fstream>
#include <random>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include "simulation/iteration_states.h"
#include "simulation/simulated_iteration.h"

namespace kaldo {
namespace {

constexpr int kLoci = 15;
constexpr int kAlleles = 10;

/// The files and settings of a simulation with so many candidates, half of the true parents.
class Study {
 public:
  Study(Flow flow, std::int32_t candidates, std::int32_t offspring)
      : folder_(std::filesystem::temp_directory_path() / "kaldo-benchmark") {
    std::filesystem::create_directories(folder_);
    settings_.flow = flow;
    settings_.procedure = Procedure::kPreParental;
    settings_.loci_file = WriteLoci();
    settings_.offspring_per_iteration = offspring;
    const std::int32_t per_set = flow == Flow::kSexed ? candidates / 2 : candidates;
    for (ParentalSet& set : settings_.sets) {
      set.pseudo_collected_sample = WriteSample();
      set.uncollected_sample = set.pseudo_collected_sample;
      set.pseudo_collected = per_set;
      set.uncollected = per_set;
      set.estimated_collected = 1;
      set.estimated_uncollected = 1;
    }
  }
  Study(const Study&) = delete;
  Study& operator=(const Study&) = delete;
  Study(Study&&) = delete;
  Study& operator=(Study&&) = delete;
  ~Study() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  const SimulationSettings& Settings() const { return settings_; }
  SimulationInput Load() const { return LoadSimulationInput(settings_).value(); }

 private:
  std::string WriteLoci() const {
    std::ofstream file(folder_ / "loci");
    for (int locus = 0; locus < kLoci; ++locus) {
      file << fmt::format("L{} ", locus);
    }
    return (folder_ / "loci").string();
  }

  std::string WriteSample() const {
    std::mt19937 random(20260301);
    std::ofstream file(folder_ / "sample");
    for (int individual = 0; individual < 100; ++individual) {
      file << fmt::format("S{}", individual);
      for (int locus = 0; locus < kLoci; ++locus) {
        file << fmt::format(" {:03}{:03}", 100 + 2 * (random() % kAlleles),
                            100 + 2 * (random() % kAlleles));
      }
      file << '\n';
    }
    return (folder_ / "sample").string();
  }

  std::filesystem::path folder_;
  SimulationSettings settings_;
};

/// Finding the start of an iteration in the stream, without making anybody.
void JumpOverIteration(benchmark::State& state) {
  const Study study(Flow::kNonSexed, 200, 1000);
  const SimulationInput input = study.Load();
  IterationStates states(study.Settings(), input, 1);
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(states.Next(1));
  }
  state.SetItemsProcessed(state.iterations() * input.OffspringPerIteration());
}

/// Iterations whose only candidates are two parents: making parents and pseudo-offspring is all.
void ProduceIteration(benchmark::State& state) {
  const Study study(Flow::kNonSexed, 2, 1000);
  const SimulationInput input = study.Load();
  SimulatedIteration iteration(study.Settings(), input);
  iteration.UseLoci(input.subsets.At(0));
  const RunObserver observer;
  std::uint32_t seed = 0;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(iteration.Run(++seed, observer));
  }
  state.SetItemsProcessed(state.iterations() * input.OffspringPerIteration());
}

/// Whole iterations; items are pseudo-offspring.
void WholeIteration(benchmark::State& state, Flow flow) {
  const Study study(flow, static_cast<std::int32_t>(state.range(0)), 1000);
  const SimulationInput input = study.Load();
  SimulatedIteration iteration(study.Settings(), input);
  iteration.UseLoci(input.subsets.At(0));
  const RunObserver observer;
  std::uint32_t seed = 0;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(iteration.Run(++seed, observer));
  }
  state.SetItemsProcessed(state.iterations() * input.OffspringPerIteration());
}

BENCHMARK(JumpOverIteration);
BENCHMARK(ProduceIteration)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WholeIteration, non_sexed, Flow::kNonSexed)
    ->Arg(200)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WholeIteration, sexed, Flow::kSexed)
    ->Arg(200)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kaldo
