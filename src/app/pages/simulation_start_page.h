// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "app/base/flow_page.h"
#include "app/import/import_offer.h"
#include "simulation/simulation_settings.h"

class QButtonGroup;
class QLineEdit;

namespace kaldo {

class FileField;
class OpenedFiles;

/// The first screen of a simulation: names of loci, number of iterations, and whether the parents
/// have been collected already (parental procedure) or not (pre-parental).
class SimulationStartPage : public FlowPage {
 public:
  /// `opened` must live as long as the page. A file of another program that is named for the loci
  /// holds parents, too: `on_imported` gets them.
  SimulationStartPage(Flow flow, OpenedFiles& opened, ImportOffer::OnImported on_imported);

  /// Fills the fields.
  void Set(const SimulationSettings& settings);

  void SetLociFile(const std::string& path);

  /// A number of iterations that cannot be read counts as 0, which no simulation has.
  void FillIn(SimulationSettings& settings) const;

  void TellTyped(Problem& problem) const override;

 private:
  ImportOffer offer_;
  FileField* loci_ = nullptr;
  QLineEdit* iterations_ = nullptr;
  QButtonGroup* procedure_;
};

}  // namespace kaldo
