// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/iteration_portions.h"

#include "allocation/reports/matrices_report.h"
#include "base/byte_packing.h"
#include "base/problem.h"
#include "simulation/reliability.h"
#include "simulation/simulated_iteration.h"

namespace kaldo {

namespace {

std::string MatricesOf(const SimulationSettings& settings, const SimulationInput& input,
                       const SimulatedIteration& iteration) {
  const MatricesReport report{settings.flow, settings.tolerance, input.digits_per_field,
                              iteration.Table(), iteration.Loci()};
  std::string text;
  for (std::uint32_t i = 0; i < iteration.Outcomes().size(); ++i) {
    text += MatricesBlock(report, Slot{iteration.Offspring().begin + i}, iteration.Outcomes()[i]);
  }
  return text;
}

class IterationWorker final : public PortionWorker {
 public:
  IterationWorker(const SimulationSettings& settings, const SimulationInput& input,
                  IterationProduct product)
      : settings_(settings), input_(input), product_(product), iteration_(settings, input) {}

  std::string Do(std::string_view order, RunObserver& observer) override {
    ByteUnpacker unpacker(order);
    UseLoci(unpacker.GetAll<LocusIndex>());
    const auto states = unpacker.GetAll<IterationStart>();
    BytePacker products;
    for (const IterationStart state : states) {
      if (observer.StopRequested()) {
        throw RunStopped();
      }
      const IterationCounts found = iteration_.Run(state, observer);
      AddProduct(found, observer, products);
      observer.OnSteps(1);
    }
    return products.Take();
  }

 private:
  void AddProduct(const IterationCounts& found, const RunObserver& observer,
                  BytePacker& products) const {
    switch (product_) {
      case IterationProduct::kCounts:
        return products.Add(found);
      case IterationProduct::kReliability:
        return products.Add(ReliabilityOf(settings_, iteration_, observer));
      case IterationProduct::kMatrices:
        return products.AddRest(MatricesOf(settings_, input_, iteration_));
    }
  }

  void UseLoci(LocusSubset loci) {
    if (loci != loci_) {
      loci_ = std::move(loci);
      iteration_.UseLoci(loci_);
    }
  }

  const SimulationSettings& settings_;
  const SimulationInput& input_;
  IterationProduct product_;
  SimulatedIteration iteration_;
  LocusSubset loci_;  // those of iteration_; none at first
};

}  // namespace

IterationProduct ProductOf(std::string_view part) {
  if (part == kReliabilityPart) {
    return IterationProduct::kReliability;
  }
  return part == kMatricesPart ? IterationProduct::kMatrices : IterationProduct::kCounts;
}

std::string PackOrder(const LocusSubset& loci, std::span<const IterationStart> states) {
  BytePacker packer;
  packer.AddAll(std::span(loci));
  packer.AddAll(states);
  return packer.Take();
}

std::unique_ptr<PortionWorker> IterationTask::MakeWorker() const {
  return std::make_unique<IterationWorker>(settings_, input_, product_);
}

}  // namespace kaldo
