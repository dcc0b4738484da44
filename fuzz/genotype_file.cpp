// SPDX-License-Identifier: GPL-3.0-or-later
// A genotype file in each of its roles; the first byte chooses.
#include <array>

#include "allocation/allocation_input.h"
#include "fuzz/memory_files.h"
#include "simulation/simulation_input.h"

namespace {

template <typename Input>
void Tell(const tl::expected<Input, kaldo::Problem>& input) {
  if (!input) {
    (void)(SentenceOf(input.error()) + DetailLine(input.error()));
  } else {
    (void)WarningLines(input->warnings);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace kaldo;
  if (size == 0) {
    return -1;
  }
  constexpr std::array kRoles = {"parents", "males", "females", "offspring", "sample"};
  const std::string role = kRoles.at(*data % kRoles.size());
  auto files =
      fuzz::StudyWith(role, std::string_view(reinterpret_cast<const char*>(data), size).substr(1));
  for (const Flow flow : {Flow::kNonSexed, Flow::kSexed}) {
    if (role != "sample") {
      Tell(LoadAllocationInput(fuzz::AllocationOfStudy(flow), files));
    }
    Tell(LoadSimulationInput(fuzz::SimulationOfStudy(flow), files));
  }
  return 0;
}
