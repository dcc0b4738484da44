// SPDX-License-Identifier: GPL-3.0-or-later
// The small tables beside a study: names before an import, sexes of individuals, and lists of
// offspring and candidates. The first byte chooses; what is read of names is read again as it was
// written.
#include <cstdlib>

#include "fuzz/memory_files.h"
#include "interchange/export/pedigree.h"
#include "interchange/import/import_run.h"

namespace {

void ImportLists(std::string_view text) {
  using namespace kaldo;
  fuzz::MemoryFiles files({{"list", std::string(text)},
                           {"table", "id,sex,L\nA,m,1/2\nB,f,1/1\nC,,2/2\nY,,1/2\nZ,,1/2\n"}});
  ImportChoices choices;
  choices.folder = "study";
  choices.files = {{"table"}};
  choices.offspring_list = "list";
  for (const bool lists_parents : {false, true}) {
    choices.father_list = lists_parents ? "list" : "";
    const auto study = ImportStudy(choices, files);
    if (!study && study.error().Text().empty()) {
      std::abort();
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace kaldo;
  if (size == 0) {
    return -1;
  }
  const auto text = std::string_view(reinterpret_cast<const char*>(data), size).substr(1);
  if (*data % 3 == 2) {
    ImportLists(text);
    return 0;
  }
  if (*data % 3 == 0) {
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
