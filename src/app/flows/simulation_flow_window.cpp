// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/flows/simulation_flow_window.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "app/base/command_text.h"
#include "app/base/messages.h"
#include "app/base/opened_files.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/flows/run_dialog.h"
#include "app/pages/loci_page.h"
#include "app/pages/output_page.h"
#include "app/pages/parental_page.h"
#include "app/pages/pseudo_offspring_page.h"
#include "app/pages/sequence_page.h"
#include "app/pages/simulation_start_page.h"
#include "app/pages/strategy_page.h"
#include "app/pages/tolerance_page.h"
#include "app/results/simulation_window.h"
#include "genotypes/stepping_condition.h"
#include "simulation/figures/class_sizes.h"
#include "simulation/figures/class_weights.h"
#include "simulation/reports/simulation_file_names.h"
#include "simulation/reports/simulation_texts.h"
#include "simulation/saved_loci.h"
#include "simulation/simulation_checks.h"
#include "simulation/simulation_command.h"
#include "simulation/simulation_record.h"
#include "simulation/simulation_run.h"
#include "simulation/trial_of_allocation.h"

namespace kaldo {

SimulationFlowWindow::SimulationFlowWindow(Flow flow, OpenedFiles& opened, QWidget* parent)
    : FlowWindow(opened, parent),
      flow_(flow),
      start_(Own(new SimulationStartPage(
          flow, opened, [this](const AllocationSettings& imported) { TakeStudy(imported); }))),
      parents_(Own(new ParentalPage(
          flow, opened, [this](const AllocationSettings& imported) { TakeLoci(imported); }))),
      offspring_(Own(new PseudoOffspringPage(flow))),
      tolerance_(Own(new TolerancePage(flow))),
      strategy_(Own(new StrategyPage(flow))),
      loci_(Own(new LociPage(kLociScreen, SimulationCaption(flow))), Own(new SequencePage)),
      output_(Own(new OutputPage(flow))) {
  strategy_->SetOnChooseLoci([this] { ChooseLoci(); });
  loci_.Sequence().SetOnOrder([this] {
    if (passed_) {
      const SimulationInput& input = passed_->input;
      loci_.OrderByInformation(input.loci, input.collected, std::array{input.candidates});
    }
  });
}

void SimulationFlowWindow::Set(const SimulationSettings& settings) {
  of_record_ = settings;
  found_.reset();
  start_->Set(settings);
  parents_->Set(settings);
  offspring_->SetNumber(settings.offspring_per_iteration);
  offspring_->Box().Set(settings.error_model);
  tolerance_->Set(settings);
  more_ = settings;
  strategy_->Set(settings);
  loci_.Set(Opened().Open(settings.loci_file), settings.loci_in_use,
            settings.sequence.empty() ? std::nullopt : std::optional(settings.sequence));
  loci_.Choice().SetSequenceWanted(false);  // the strategy screen leads to the sequence
  output_->Set(settings);
}

void SimulationFlowWindow::AllowUndefinedParents(const AllocationSettings& imported) {
  more_.allow_undefined_parents = imported.allow_undefined_parents;
  if (imported.allow_undefined_parents) {
    more_.undefined_in_sample = UndefinedInSample::kIgnore;
  }
}

void SimulationFlowWindow::TakeStudy(const AllocationSettings& imported) {
  AllowUndefinedParents(imported);
  start_->SetLociFile(imported.loci_file);
  parents_->TakeImported(SettingsUpTo(Known::kStart).procedure, imported);
}

void SimulationFlowWindow::TakeLoci(const AllocationSettings& imported) {
  AllowUndefinedParents(imported);
  const auto then = Opened().Open(SettingsUpTo(Known::kStart).loci_file);
  const auto now = Opened().Open(imported.loci_file);
  if (then && now && LociList(*then).Names() == LociList(*now).Names()) {
    return;
  }
  ShowFailure(
      this,
      Tr("The converted files have other loci than the names-of-loci file of this simulation, "
         "or in another order. Theirs are in \"%1\": all files of a simulation need the "
         "same.")
          .arg(PathText(imported.loci_file)));
}

FlowPage& SimulationFlowWindow::FirstPage() { return *start_; }

void SimulationFlowWindow::Leave() {
  loci_.Leave();
  passed_.reset();
}

bool SimulationFlowWindow::MayStartRun(const FlowPage& page) const { return &page == output_; }

std::size_t SimulationFlowWindow::ScreensBehind(const FlowPage& page) const {
  if (&page == output_) {
    return 0;
  }
  const auto strategy = strategy_->Strategy();
  const bool chooses = strategy == LociStrategy::kChoice || strategy == LociStrategy::kCumulative;
  const std::size_t behind_strategy = chooses ? 2 : 1;
  const std::array<const FlowPage*, 5> in_turn = {start_, parents_, offspring_, tolerance_,
                                                  strategy_};
  const auto* const place = std::find(in_turn.begin(), in_turn.end(), &page);
  if (place != in_turn.end()) {
    return static_cast<std::size_t>(in_turn.end() - place) - 1 + behind_strategy;
  }
  return 1;  // a choice or a sequence of loci leads to the output
}

void SimulationFlowWindow::Prepare(const FlowPage& page) {
  if (&page == tolerance_) {
    tolerance_->SetErrorModel(offspring_->Box().Model().value_or(ErrorModel{}));
  }
  if (&page == strategy_) {
    const std::size_t all = loci_.Choice().Names().size();
    const auto in_use = loci_.Choice().InUse();
    strategy_->ShowLoci(in_use ? in_use->size() : all, all);
  }
}

void SimulationFlowWindow::Confirm(const FlowPage& page) {
  if (&page == start_) {
    ConfirmStart();
  } else if (&page == parents_) {
    ConfirmParents();
  } else if (&page == offspring_) {
    ConfirmOffspring();
  } else if (&page == tolerance_) {
    ConfirmTolerance();
  } else if (&page == strategy_) {
    ConfirmStrategy();
  } else if (&page == &loci_.Choice()) {
    ConfirmLoci();
  } else if (&page == &loci_.Sequence()) {
    ConfirmSequence();
  } else {
    ConfirmOutput();
  }
}

SimulationSettings SimulationFlowWindow::SettingsUpTo(Known known) const {
  SimulationSettings settings;
  settings.flow = flow_;
  settings.project = Project();
  start_->FillIn(settings);
  settings.allow_undefined_parents = more_.allow_undefined_parents;
  if (known >= Known::kParents) {
    parents_->FillIn(settings);
  }
  if (known >= Known::kOffspring) {
    settings.offspring_per_iteration = offspring_->OffspringPerIteration();
    settings.error_model = offspring_->Box().Model().value_or(ErrorModel{});
  }
  if (known >= Known::kTolerance) {
    tolerance_->FillIn(settings);
    settings.undefined = more_.undefined;
    settings.undefined_like = more_.undefined_like;
    settings.undefined_in_sample = more_.undefined_in_sample;
    settings.scan_tolerance = more_.scan_tolerance;
    settings.scan_uncollected = more_.scan_uncollected;
  }
  if (known >= Known::kStrategy) {
    strategy_->FillIn(settings);
    settings.loci_in_use = loci_.Choice().InUse();
  }
  if (known >= Known::kLoci && settings.strategy == LociStrategy::kChoice &&
      loci_.Choice().SequenceWanted()) {
    settings.strategy = LociStrategy::kCumulative;
  }
  if (known >= Known::kSequence && settings.strategy == LociStrategy::kCumulative) {
    settings.sequence = loci_.Sequence().Indices();
  }
  if (known >= Known::kAll) {
    output_->FillIn(settings);
    settings.until_error = of_record_.until_error;
  }
  return settings;
}

bool SimulationFlowWindow::Passes(const SimulationSettings& settings) {
  auto input =
      OpenSimulationFiles(settings, Opened().Opener()).and_then([&](const SimulationFiles& files) {
        return LoadSimulationInput(settings, files);
      });
  if (!input) {
    Refuse(input.error());
    return false;
  }
  passed_ = {settings, std::move(*input)};
  return true;
}

tl::expected<SimulationInput, Problem> SimulationFlowWindow::Input(
    const SimulationSettings& settings, const SimulationFiles& files) const {
  if (passed_ && passed_->settings == settings && passed_->input.files == files.Recorded()) {
    return passed_->input;
  }
  return LoadSimulationInput(settings, files);
}

void SimulationFlowWindow::ConfirmStart() {
  const SimulationSettings settings = SettingsUpTo(Known::kStart);
  if (WarnsOfManyIterations(flow_, settings.iterations)) {
    ShowSentence(this, kManyIterations);
  }
  const auto loci = OpenSimulationLoci(settings, Opened().Opener());
  if (!loci) {
    return Refuse(loci.error());
  }
  if (const auto fault = CheckIterations(flow_, settings.iterations)) {
    return Refuse(*fault);
  }
  if (const auto fault = CheckLoci(*loci)) {
    return Refuse(*fault);
  }
  if (!MakeProjectFolder()) {
    return;
  }
  const LociList list(*loci);
  if (const auto failure = SaveLoci(list)) {
    ShowFailure(this, TrCore(*failure));
  }
  loci_.Refill(list.Names());
  parents_->Prepare(settings.procedure, settings.loci_file);
  ShowPage(*parents_);
}

void SimulationFlowWindow::ConfirmParents() {
  const SimulationSettings settings = SettingsUpTo(Known::kParents);
  const auto files = OpenSimulationFiles(settings, Opened().Opener());
  if (!files) {
    return Refuse(files.error());
  }
  if (const auto fault = parents_->NumberFault()) {
    return Refuse(*fault);
  }
  if (const auto fault = CheckSimulationFiles(*files, LociList(files->loci))) {
    Refuse(*fault);
    return reject();  // files at fault end the flow; what was typed stays for the next time
  }
  const auto input = LoadSimulationInput(settings, *files);
  if (!input) {
    return Refuse(input.error());
  }
  ShowShares(input->collected_numbers);
  ShowPage(*offspring_);
}

void SimulationFlowWindow::ShowShares(const std::vector<double>& collected_numbers) {
  offspring_->SetShares([this, collected_numbers](std::int32_t number) {
    SimulationSettings settings = SettingsUpTo(Known::kParents);
    settings.offspring_per_iteration = number;
    const auto weights = ClassWeights(settings, collected_numbers);
    const auto sizes = ClassSizes(settings, collected_numbers);
    std::vector<OriginShare> shares;
    for (std::size_t k = 0; k < weights.size(); ++k) {
      shares.push_back({std::string(TextsOf(flow_).origins[k].label), weights[k], sizes[k]});
    }
    return shares;
  });
}

void SimulationFlowWindow::ConfirmOffspring() {
  const auto model = offspring_->Box().Model();
  if (!model) {
    return Refuse(model.error());
  }
  if (const auto fault = ValidateForSimulation(*model)) {
    return Refuse(*fault);
  }
  if (Passes(SettingsUpTo(Known::kOffspring))) {
    ShowPage(*tolerance_);
  }
}

void SimulationFlowWindow::ConfirmTolerance() {
  if (const auto fault = tolerance_->Field().Fault()) {
    return Refuse(*fault);
  }
  ShowPage(*strategy_);
}

void SimulationFlowWindow::ConfirmStrategy() {
  if (!strategy_->Strategy()) {
    return Refuse({.kind = ProblemKind::kNoStrategy});
  }
  SimulationSettings settings = SettingsUpTo(Known::kStrategy);
  if (settings.strategy == LociStrategy::kChoice) {
    settings.loci_in_use.reset();  // chosen on the next screen
  }
  if (!Passes(settings)) {
    return;
  }
  switch (settings.strategy) {
    case LociStrategy::kChoice:
      return ShowPage(loci_.Choice());
    case LociStrategy::kCumulative:
      return ShowPage(loci_.Sequence());
    case LociStrategy::kAll:
    case LociStrategy::kMinimal:
      return ShowPage(*output_);
  }
}

void SimulationFlowWindow::ChooseLoci() {
  if (!strategy_->Strategy()) {
    return Refuse({.kind = ProblemKind::kNoStrategy});
  }
  ShowPage(loci_.Choice());
}

void SimulationFlowWindow::ConfirmLoci() {
  if (const auto fault = loci_.ChoiceFault()) {
    return Refuse(*fault);
  }
  const SimulationSettings settings = SettingsUpTo(Known::kLoci);
  if (settings.strategy == LociStrategy::kCumulative) {
    ShowPage(loci_.Sequence());
  } else if (Passes(settings)) {
    ShowPage(*output_);
  }
}

void SimulationFlowWindow::ConfirmSequence() {
  if (const auto fault = loci_.SequenceFault()) {
    return Refuse(*fault);
  }
  if (Passes(SettingsUpTo(Known::kSequence))) {
    ShowPage(*output_);
  }
}

void SimulationFlowWindow::ConfirmOutput() {
  if (const auto fault = output_->SeedFault()) {
    return Refuse(*fault);
  }
  Run();
}

std::string SimulationFlowWindow::Command() {
  if (const auto fault = output_->SeedFault()) {
    Refuse(*fault);
    return {};
  }
  return CommandOf(SettingsUpTo(Known::kAll));
}

void SimulationFlowWindow::Run() {
  SimulationSettings settings = SettingsUpTo(Known::kAll);
  if (!AskToReplace(SimulationFlowName(settings.flow), settings.may_replace_other_flow)) {
    return;
  }
  settings.kept_work = AskToResume(SimulationFlowName(settings.flow));
  const auto files = OpenSimulationFiles(settings, Opened().Opener());
  if (!files) {
    return Refuse(files.error());
  }
  const SimulationSettings tested = SettingsUpTo(Known::kSequence);  // the outputs need no test
  tl::expected<SimulationRun, Problem> run;
  const auto work = [&](RunObserver& observer) {
    run = Input(tested, *files).map([&](SimulationInput input) {
      LocalThreads threads;
      return RunSimulation(settings, std::move(input), observer, threads);
    });
  };
  if (!RunWithProgress(this, windowTitle(), work)) {
    return;
  }
  if (!run) {
    return Refuse(run.error());
  }
  settings.seed = run->result.seed;
  found_ = TrialSentence(settings, run->result);
  const bool out_of_step = run->result.stepping.any_out_of_step;
  auto* const results = new SimulationWindow(settings, std::move(*run), ResultsFolder());
  results->SetCommand(CommandHere(CommandOf(settings)));
  accept();
  results->show();
  if (out_of_step) {
    ShowSentenceAbout(results, kSteppingSentence, ResultsFolder() + Text(kSteppingErrorFile));
  }
  ShowClosingSentence(results, TextsOf(flow_).closing_sentence);
  results->raise();
  results->activateWindow();
}

}  // namespace kaldo
