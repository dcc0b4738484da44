// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "allocation/allocation_settings.h"
#include "app/flows/flow_window.h"
#include "app/flows/loci_screens.h"
#include "simulation/simulation_input.h"
#include "simulation/simulation_settings.h"

namespace kaldo {

class PseudoOffspringPage;
class OutputPage;
class ParentalPage;
class SimulationStartPage;
class StrategyPage;
class TolerancePage;

/// The screens of a simulation, sexed or not: names of loci, iterations and procedure; parents;
/// pseudo-offspring and transmission error; tolerance; strategy; choice of loci or cumulative
/// sequence; output; run.
class SimulationFlowWindow : public FlowWindow {
 public:
  SimulationFlowWindow(Flow flow, OpenedFiles& opened, QWidget* parent);

  /// Fills all screens.
  void Set(const SimulationSettings& settings);

  /// What the run of these screens found, in a sentence; nothing before one is done.
  const std::optional<std::string>& Found() const { return found_; }

 protected:
  FlowPage& FirstPage() override;
  void Confirm(const FlowPage& page) override;
  void Leave() override;
  void Prepare(const FlowPage& page) override;
  std::string Command() override;
  std::size_t ScreensBehind(const FlowPage& page) const override;
  bool MayStartRun(const FlowPage& page) const override;

 private:
  /// How far the settings are known: each screen adds to those before.
  enum class Known { kStart, kParents, kOffspring, kTolerance, kStrategy, kLoci, kSequence, kAll };

  /// What the screens up to `known` say. What is not known yet has a value that passes all tests.
  SimulationSettings SettingsUpTo(Known known) const;

  /// An input and what it was loaded for.
  struct Loaded {
    SimulationSettings settings;
    SimulationInput input;
  };

  /// Tests the settings as the run will, and keeps what was loaded for them; tells what is wrong.
  bool Passes(const SimulationSettings& settings);

  /// The input of a run, from files that were opened: what passed last with the same settings,
  /// unless the files have changed since.
  tl::expected<SimulationInput, Problem> Input(const SimulationSettings& settings,
                                               const SimulationFiles& files) const;

  /// Parents of a converted study may be undefined at some loci where the user kept them.
  void AllowUndefinedParents(const AllocationSettings& imported);

  /// The loci of a converted study, with its parents.
  void TakeStudy(const AllocationSettings& imported);

  /// Tells where the loci of converted parents are not those of the simulation.
  void TakeLoci(const AllocationSettings& imported);

  void ConfirmStart();
  void ConfirmParents();
  void ConfirmOffspring();
  void ConfirmTolerance();
  void ConfirmStrategy();
  void ChooseLoci();
  void ConfirmLoci();
  void ConfirmSequence();
  void ConfirmOutput();
  void ShowShares(const std::vector<double>& collected_numbers);
  void Run();

  Flow flow_;
  SimulationStartPage* start_;
  ParentalPage* parents_;
  PseudoOffspringPage* offspring_;
  TolerancePage* tolerance_;
  StrategyPage* strategy_;
  LociScreens loci_;
  OutputPage* output_;
  SimulationSettings more_;  ///< of a record: what no screen shows is run as it was
  std::optional<Loaded> passed_;
  std::optional<std::string> found_;
  SimulationSettings of_record_;  ///< opened last, for the settings that have no field
};

}  // namespace kaldo
