// SPDX-License-Identifier: GPL-3.0-or-later
// A run record from anybody. What is read must be written as it was, and its settings must bring
// the same settings back.
#include "runs/run_record.h"

#include <cstdlib>

#include "simulation/run_settings.h"

namespace {

void Expect(bool holds) {
  if (!holds) {
    std::abort();
  }
}

/// Settings as a record tells them; a number that is none (NaN) is then like itself.
std::string TextOf(const kaldo::RunSettings& settings) {
  kaldo::RunRecord record;
  if (const auto* const allocation = std::get_if<kaldo::AllocationSettings>(&settings)) {
    kaldo::RecordSettings(kaldo::AllocationSettingTable(), *allocation, record);
  } else {
    kaldo::RecordSettings(kaldo::SimulationSettingTable(),
                          std::get<kaldo::SimulationSettings>(settings), record);
  }
  return FormatRunRecord(record);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace kaldo;
  const auto record =
      ParseRunRecord({reinterpret_cast<const char*>(data), size}, "Run record.toml");
  if (!record) {
    (void)(SentenceOf(record.error()) + DetailLine(record.error()));
    return 0;
  }
  const auto settings = RunSettingsOf(*record, "Run record.toml");
  if (!settings) {
    return 0;
  }
  const std::string text = FormatRunRecord(*record);
  const auto again = ParseRunRecord(text, "Run record.toml");
  Expect(again && FormatRunRecord(*again) == text);
  const auto same = RunSettingsOf(*again, "Run record.toml");
  Expect(same && TextOf(*same) == TextOf(*settings));
  return 0;
}
