// SPDX-License-Identifier: GPL-3.0-or-later
// The text of an option. The first byte chooses the option; what is understood must be told in a
// way that is understood as the same.
#include <cstdlib>

#include "allocation/allocation_settings.h"
#include "simulation/simulation_settings.h"

namespace {

template <typename Settings>
void TypeIn(kaldo::SettingTable<Settings> table, std::size_t option, std::string_view text) {
  const auto& setting = table[option % table.size()];
  Settings settings;
  if (const auto problem = setting.value.parse(settings, setting.option, text)) {
    (void)(SentenceOf(*problem) + DetailLine(*problem));
    return;
  }
  const auto told = setting.value.text(settings);
  Settings again;
  if (told &&
      (setting.value.parse(again, setting.option, *told) || setting.value.text(again) != told)) {
    std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  if (size == 0) {
    return -1;
  }
  const auto text = std::string_view(reinterpret_cast<const char*>(data), size).substr(1);
  TypeIn(kaldo::AllocationSettingTable(), *data, text);
  TypeIn(kaldo::SimulationSettingTable(), *data, text);
  return 0;
}
