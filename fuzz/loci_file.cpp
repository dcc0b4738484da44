// SPDX-License-Identifier: GPL-3.0-or-later
// The names-of-loci file of an allocation and of a simulation.
#include "allocation/allocation_input.h"
#include "fuzz/memory_files.h"
#include "simulation/simulation_input.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace kaldo;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  auto files = fuzz::StudyWith("loci", text);
  const auto allocation = LoadAllocationInput(fuzz::AllocationOfStudy(Flow::kNonSexed), files);
  if (!allocation) {
    (void)(SentenceOf(allocation.error()) + DetailLine(allocation.error()));
  }
  (void)LoadSimulationInput(fuzz::SimulationOfStudy(Flow::kNonSexed), files);
  return 0;
}
