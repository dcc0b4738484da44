// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "allocation/allocation_input.h"
#include "app/flows/flow_window.h"
#include "app/flows/loci_screens.h"
#include "app/results/start_trial.h"

namespace kaldo {

class AllocationFilePage;
class ErrorPage;

/// The screens of an allocation, sexed or not: files, transmission error, choice of loci, where
/// wanted the cumulative sequence, run.
class AllocationFlowWindow : public FlowWindow {
 public:
  AllocationFlowWindow(Flow flow, OpenedFiles& opened, QWidget* parent);

  /// Fills all screens.
  void Set(const AllocationSettings& settings);

  /// Called when results are to be tried by a simulation.
  void SetOnTrial(StartTrial start) { start_trial_ = std::move(start); }

 protected:
  FlowPage& FirstPage() override;
  void Confirm(const FlowPage& page) override;
  void Leave() override;
  void Prepare(const FlowPage& /*page*/) override {}
  std::string Command() override;
  std::size_t ScreensBehind(const FlowPage& page) const override;
  bool MayStartRun(const FlowPage& page) const override;

 private:
  /// What the file screen says; all else is left as it is without a choice.
  AllocationSettings FileSettings() const;

  /// What all screens say. A field that cannot be read is told, and nothing comes back.
  std::optional<AllocationSettings> AllSettings();

  /// The input of a run, from files that were opened: what was loaded when the file screen was
  /// confirmed, unless they have changed since.
  tl::expected<AllocationInput, Problem> Input(const AllocationSettings& settings,
                                               const AllocationFiles& files) const;

  void ConfirmFiles();
  void ConfirmError();
  void ConfirmLoci();
  void ConfirmSequence();
  void Run();

  Flow flow_;
  StartTrial start_trial_;
  AllocationFilePage* files_;
  ErrorPage* error_;
  LociScreens loci_;

  /// No screen asks for it: as a record has it, else as a command has it that says nothing.
  WantedConfidence confidence_;

  /// The individuals of the confirmed files, before any choice of loci.
  std::optional<AllocationInput> confirmed_;
};

}  // namespace kaldo
