// SPDX-License-Identifier: GPL-3.0-or-later
// A file of another program, with parents and offspring of the same contents. The first byte
// chooses the format, or that it is recognised.
#include <cstdlib>

#include "fuzz/memory_files.h"
#include "interchange/import/format_readers.h"
#include "interchange/import/import_run.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace kaldo;
  if (size == 0) {
    return -1;
  }
  const auto text = std::string_view(reinterpret_cast<const char*>(data), size).substr(1);
  auto files = fuzz::StudyWith("foreign", text);
  const auto readers = FormatReaders();
  ImportChoices choices;
  choices.folder = "study";
  if (const std::size_t format = *data % (readers.size() + 1); format < readers.size()) {
    choices.format = std::string(readers[format].key);
  }
  choices.missing_parents = static_cast<MissingParents>(*data / 16 % 5);
  for (const Role role : {Role::kUnknown, Role::kParent}) {
    choices.files = {{"foreign", role}};
    if (role == Role::kParent) {
      choices.files.push_back({"foreign", Role::kOffspring});
    }
    const auto study = ImportStudy(choices, files);
    if (!study && study.error().Text().empty()) {
      std::abort();
    }
  }
  (void)LookAtForeignFile("foreign", files);
  return 0;
}
