// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/run_forecast.h"

#include <algorithm>
#include <chrono>

#include "base/problem.h"
#include "runs/usable_threads.h"
#include "simulation/iteration_states.h"
#include "simulation/random_warnings.h"
#include "simulation/reports/estimate_texts.h"
#include "simulation/simulated_iteration.h"

namespace kaldo {

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

// An iteration is tried again until so much time is gone, and given up when it takes longer.
constexpr Seconds kEnough{0.25};
constexpr Seconds kTooLong{3};

class Patience final : public RunObserver {
 public:
  bool StopRequested() const override { return Clock::now() - start_ > kTooLong; }
  Seconds Gone() const { return Clock::now() - start_; }

 private:
  Clock::time_point start_ = Clock::now();
};

struct Trial {
  double seconds = 0;  ///< of an iteration
  bool given_up = false;
};

Trial Try(const SimulationSettings& settings, const SimulationInput& input,
          const LocusSubset& loci) {
  SimulatedIteration iteration(settings, input);
  iteration.UseLoci(loci);
  const std::vector<IterationStart> starts = IterationStates(settings, input, 1).Next(1);
  const Patience patience;
  int done = 0;
  try {
    do {
      (void)iteration.Run(starts.front(), patience);
      ++done;
    } while (patience.Gone() < kEnough);
  } catch (const RunStopped&) {
    return {patience.Gone().count(), done == 0};
  }
  return {patience.Gone().count() / done, false};
}

double MeanSize(const LocusSubsets& subsets) {
  double loci = 0;
  for (std::size_t k = 0; k < subsets.Count(); ++k) {
    loci += static_cast<double>(subsets.At(k).size());
  }
  return loci / static_cast<double>(subsets.Count());
}

void ForecastTime(const SimulationSettings& settings, const SimulationInput& input,
                  RunForecast& forecast) {
  const LocusSubset smallest = input.subsets.At(0);
  const LocusSubset largest = input.subsets.At(input.subsets.Count() - 1);
  const Trial of_largest = Try(settings, input, largest);
  forecast.is_at_least = of_largest.given_up;
  double seconds = of_largest.seconds;
  if (!of_largest.given_up && smallest.size() < largest.size()) {
    const Trial of_smallest = Try(settings, input, smallest);
    forecast.is_at_least = of_smallest.given_up;
    const double place = (MeanSize(input.subsets) - static_cast<double>(smallest.size())) /
                         static_cast<double>(largest.size() - smallest.size());
    seconds = of_smallest.seconds + place * (of_largest.seconds - of_smallest.seconds);
  }
  const double iterations =
      static_cast<double>(forecast.subsets) * static_cast<double>(forecast.iterations);
  forecast.seconds = seconds * iterations / std::min<double>(forecast.threads, iterations);
}

}  // namespace

RunForecast ForecastRun(const SimulationSettings& settings, const SimulationInput& input) {
  RunForecast forecast;
  forecast.classes.reserve(input.class_sizes.size());
  for (std::size_t k = 0; k < input.class_sizes.size(); ++k) {
    forecast.classes.push_back(
        {ClassName(settings.flow, k), input.class_sizes[k], input.weights[k]});
  }
  forecast.subsets = input.subsets.Count();
  forecast.subsets_in_all = input.subsets.InAll();
  forecast.iterations = settings.iterations;
  forecast.draws = DrawsOfRun(settings, input);
  forecast.threads = settings.threads != 0 ? settings.threads : UsableThreads();
  forecast.is_at_most = settings.strategy == LociStrategy::kMinimal || settings.until_error;
  ForecastTime(settings, input, forecast);
  return forecast;
}

}  // namespace kaldo
