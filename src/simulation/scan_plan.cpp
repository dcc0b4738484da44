// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/scan_plan.h"

#include "base/byte_packing.h"
#include "simulation/simulated_iteration.h"

namespace kaldo {

namespace {

class ScanWorker final : public PortionWorker {
 public:
  ScanWorker(std::span<const OffsetTolerance> tolerances, std::span<const ScannedRun> runs)
      : tolerances_(tolerances), runs_(runs) {}

  std::string Do(std::string_view order, RunObserver& observer) override {
    ByteUnpacker unpacker(order);
    const auto run = unpacker.Get<std::uint64_t>();
    Begin(run, unpacker.GetAll<LocusIndex>());
    BytePacker products;
    for (const IterationStart state : unpacker.GetAll<IterationStart>()) {
      if (observer.StopRequested()) {
        throw RunStopped();
      }
      (void)iteration_->Run(state, observer);
      for (const OffsetTolerance tolerance : tolerances_) {
        products.Add(iteration_->Judge(tolerance));
      }
      observer.OnSteps(1);
    }
    return products.Take();
  }

 private:
  void Begin(std::uint64_t run, const LocusSubset& loci) {
    if (!iteration_ || run != run_) {
      iteration_.emplace(runs_[run].settings, runs_[run].input);
      iteration_->UseLoci(loci);
      run_ = run;
    }
  }

  std::span<const OffsetTolerance> tolerances_;
  std::span<const ScannedRun> runs_;
  std::optional<SimulatedIteration> iteration_;
  std::uint64_t run_ = 0;
};

}  // namespace

ScanPlan::ScanPlan(const SimulationSettings& settings, const SimulationInput& input,
                   SimulationResult& result)
    : input_(input),
      result_(result),
      tolerances_(ScannedTolerances(settings)),
      runs_(ScannedRuns(settings, input)) {}

std::size_t ScanPlan::ItemsPerGroup() const {
  return static_cast<std::size_t>(runs_.front().settings.iterations);
}

std::string ScanPlan::Order(const Portion& portion) {
  const ScannedRun& run = runs_[portion.group];
  if (portion.begin == 0) {
    stream_.emplace(run.settings, run.input, result_.seed);
  }
  const auto states = stream_->Next(portion.Size());
  const LocusSubset loci = input_.subsets.At(0);
  BytePacker packer;
  packer.Add(std::uint64_t{portion.group});
  packer.AddAll(std::span(loci));
  packer.AddAll(std::span(states));
  return packer.Take();
}

bool ScanPlan::Take(const Portion& portion, std::string_view result) {
  if (portion.begin == 0) {
    iterations_.assign(tolerances_.size(), {});
  }
  ByteUnpacker unpacker(result);
  for (std::size_t i = portion.begin; i < portion.end; ++i) {
    for (auto& of_tolerance : iterations_) {
      of_tolerance.push_back(unpacker.Get<IterationCounts>());
    }
  }
  if (portion.end == ItemsPerGroup()) {
    for (std::size_t k = 0; k < tolerances_.size(); ++k) {
      result_.scan.push_back(ScanRowOf(runs_[portion.group], tolerances_[k], iterations_[k]));
    }
  }
  if (portion.end == ItemsPerGroup() && portion.group + 1 == runs_.size()) {
    MarkBest(tolerances_.size(), result_.scan);
  }
  return true;
}

std::unique_ptr<PortionWorker> ScanTask::MakeWorker() const {
  return std::make_unique<ScanWorker>(tolerances_, runs_);
}

}  // namespace kaldo
