// SPDX-License-Identifier: GPL-3.0-or-later
// The small tables beside a study: names before an import, and the sexes of individuals. The first
// byte chooses; what is read of names is read again as it was written.
#include <cstdlib>

#include "fuzz/memory_files.h"
#include "interchange/export/pedigree.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace kaldo;
  if (size == 0) {
    return -1;
  }
  const auto text = std::string_view(reinterpret_cast<const char*>(data), size).substr(1);
  if (*data % 2 == 0) {
    const auto names = OriginalNames::FromText(text, "names.tsv");
    if (names && OriginalNames::FromText(names->Text(), "names.tsv")->All() != names->All()) {
      std::abort();
    }
    return 0;
  }
  auto files = fuzz::StudyWith("names", "");
  const auto input = LoadAllocationInput(fuzz::AllocationOfStudy(Flow::kNonSexed), files);
  const auto sexes = ReadSexes(text, "sexes", input.value(), {});
  if (sexes && sexes->size() > input->table.NumberOfIndividuals()) {
    std::abort();
  }
  return 0;
}
