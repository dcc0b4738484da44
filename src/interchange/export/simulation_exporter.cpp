// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/simulation_exporter.h"

#include "interchange/export/allocation_tables.h"
#include "interchange/export/simulation_tables.h"

namespace kaldo {

std::optional<Problem> SimulationExporter::Prepare(SimulationSettings& settings,
                                                   SimulationInput& /*input*/,
                                                   FileSource& /*source*/) {
  forms_ = settings.also;
  return std::nullopt;
}

std::vector<std::string_view> SimulationExporter::Files() const {
  return forms_.tables ? std::vector<std::string_view>{kIterationsTable, kSequenceTable}
                       : std::vector<std::string_view>();
}

Exported SimulationExporter::Make(const SimulationSettings& settings, const SimulationInput& input,
                                  const SimulationResult& result, const RunRecord& /*record*/) {
  Exported exported;
  if (forms_.tables) {
    exported.files = {{kIterationsTable, TsvText(IterationsTable(settings, result))},
                      {kSequenceTable, TsvText(SubsetsTable(settings, input, result))}};
  }
  made_.clear();
  for (const ExportedFile& file : exported.files) {
    made_.emplace_back(file.name.substr(1));
  }
  return exported;
}

}  // namespace kaldo
