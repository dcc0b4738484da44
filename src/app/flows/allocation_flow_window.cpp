// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/flows/allocation_flow_window.h"

#include "allocation/allocation_command.h"
#include "allocation/allocation_file_names.h"
#include "allocation/allocation_record.h"
#include "allocation/allocation_run.h"
#include "app/base/command_text.h"
#include "app/base/messages.h"
#include "app/base/opened_files.h"
#include "app/base/text.h"
#include "app/flows/results_opener.h"
#include "app/flows/run_dialog.h"
#include "app/pages/allocation_file_page.h"
#include "app/pages/error_page.h"
#include "app/pages/loci_page.h"
#include "app/pages/sequence_page.h"
#include "app/results/allocation_window.h"
#include "confidence/parent_frequencies.h"

namespace kaldo {

namespace {

const ScreenEntry& LociScreenOf(Flow flow) {
  return flow == Flow::kSexed ? kSexedAllocationLociScreen : kLociScreen;
}

}  // namespace

AllocationFlowWindow::AllocationFlowWindow(Flow flow, OpenedFiles& opened, QWidget* parent)
    : FlowWindow(opened, parent),
      flow_(flow),
      files_(Own(new AllocationFilePage(flow, opened))),
      error_(Own(new ErrorPage(AllocationCaption(flow)))),
      loci_(Own(new LociPage(LociScreenOf(flow), AllocationCaption(flow))), Own(new SequencePage)) {
  loci_.Sequence().SetOnOrder([this] {
    if (confirmed_) {
      loci_.OrderByInformation(confirmed_->loci, confirmed_->table,
                               RangesOfParents(flow_, confirmed_->groups));
    }
  });
}

void AllocationFlowWindow::Set(const AllocationSettings& settings) {
  files_->Set(settings);
  confidence_ = settings.confidence;
  error_->Box().Set(settings.error_model);
  loci_.Set(Opened().Open(settings.loci_file), settings.loci_in_use, settings.sequence);
}

FlowPage& AllocationFlowWindow::FirstPage() { return *files_; }

void AllocationFlowWindow::Leave() {
  loci_.Leave();
  confirmed_.reset();
}

bool AllocationFlowWindow::MayStartRun(const FlowPage& page) const {
  return &page == &loci_.Choice() || &page == &loci_.Sequence();
}

std::size_t AllocationFlowWindow::ScreensBehind(const FlowPage& page) const {
  const std::size_t sequence = loci_.Choice().SequenceWanted() ? 1 : 0;
  return &page == files_            ? 2 + sequence
         : &page == error_          ? 1 + sequence
         : &page == &loci_.Choice() ? sequence
                                    : 0;
}

void AllocationFlowWindow::Confirm(const FlowPage& page) {
  if (&page == files_) {
    ConfirmFiles();
  } else if (&page == error_) {
    ConfirmError();
  } else if (&page == &loci_.Choice()) {
    ConfirmLoci();
  } else {
    ConfirmSequence();
  }
}

AllocationSettings AllocationFlowWindow::FileSettings() const {
  AllocationSettings settings;
  settings.flow = flow_;
  settings.project = Project();
  settings.confidence = confidence_;
  files_->FillIn(settings);
  return settings;
}

void AllocationFlowWindow::ConfirmFiles() {
  const AllocationSettings settings = FileSettings();
  const auto files = OpenAllocationFiles(settings, Opened().Opener());
  if (!files) {
    return Refuse(files.error());
  }
  if (const auto fault = files_->ToleranceFault()) {
    return Refuse(*fault);
  }
  const LociList loci(files->loci.tokens);
  if (const auto fault = CheckAllocationFiles(*files, loci)) {
    if (fault->kind != ProblemKind::kSeparatorsDiffer) {  // the screen closes without a message
      Refuse(*fault);
    }
    return reject();  // files at fault end the flow; what was typed stays for the next time
  }
  auto individuals = LoadIndividuals(settings, *files);
  if (!individuals) {
    return Refuse(individuals.error());
  }
  confirmed_ = std::move(*individuals);
  if (const auto input = Input(settings, *files); !input) {
    return Refuse(input.error());
  }
  if (MakeProjectFolder()) {
    loci_.Refill(loci.Names());
    ShowPage(*error_);
  }
}

void AllocationFlowWindow::ConfirmError() {
  const auto model = error_->Box().Model();
  if (!model) {
    return Refuse(model.error());
  }
  if (const auto fault = ValidateForAllocation(*model)) {
    return Refuse(*fault);
  }
  ShowPage(loci_.Choice());
}

void AllocationFlowWindow::ConfirmLoci() {
  if (const auto fault = loci_.ChoiceFault()) {
    return Refuse(*fault);
  }
  if (loci_.Choice().SequenceWanted()) {
    return ShowPage(loci_.Sequence());
  }
  Run();
}

void AllocationFlowWindow::ConfirmSequence() {
  if (const auto fault = loci_.SequenceFault()) {
    return Refuse(*fault);
  }
  Run();
}

std::optional<AllocationSettings> AllocationFlowWindow::AllSettings() {
  AllocationSettings settings = FileSettings();
  const auto model = error_->Box().Model();
  if (!model) {
    Refuse(model.error());
    return std::nullopt;
  }
  settings.error_model = *model;
  settings.loci_in_use = loci_.Choice().InUse();
  if (loci_.Choice().SequenceWanted()) {
    settings.sequence = loci_.Sequence().Indices();
  }
  return settings;
}

tl::expected<AllocationInput, Problem> AllocationFlowWindow::Input(
    const AllocationSettings& settings, const AllocationFiles& files) const {
  const bool same = confirmed_ && confirmed_->files == files.Recorded();
  tl::expected<AllocationInput, Problem> input =
      same ? *confirmed_ : LoadIndividuals(settings, files);
  if (input) {
    if (auto fault = ApplyChoices(settings, files, *input)) {
      return tl::unexpected(std::move(*fault));
    }
  }
  return input;
}

std::string AllocationFlowWindow::Command() {
  const auto settings = AllSettings();
  return settings ? CommandOf(*settings) : std::string();
}

void AllocationFlowWindow::Run() {
  auto settings = AllSettings();
  if (!settings ||
      !AskToReplace(AllocationFlowName(settings->flow), settings->may_replace_other_flow)) {
    return;
  }
  settings->kept_work = AskToResume(AllocationFlowName(settings->flow));
  const auto files = OpenAllocationFiles(*settings, Opened().Opener());
  if (!files) {
    return Refuse(files.error());
  }
  tl::expected<AllocationRun, Problem> run;
  const auto work = [&](RunObserver& observer) {
    run = Input(*settings, *files).map([&](AllocationInput input) {
      LocalThreads threads;
      return RunAllocation(*settings, std::move(input), observer, threads);
    });
  };
  if (!RunWithProgress(this, windowTitle(), work)) {
    return;
  }
  if (!run) {
    return Refuse(run.error());
  }
  const std::string_view closing = ClosingSentence(run->result);
  const bool out_of_step = run->result.stepping.any_out_of_step;
  auto* const results = new AllocationWindow(*settings, std::move(*run), ResultsFolder());
  results->SetCommand(CommandHere(CommandOf(*settings)));
  if (start_trial_) {
    results->OfferTrial(start_trial_);
  }
  results->OfferComparison(AskForOtherRun);
  accept();
  results->show();
  if (out_of_step) {
    ShowSentenceAbout(results, closing, ResultsFolder() + Text(kSteppingErrorFile));
  } else {
    ShowClosingSentence(results, closing);
  }
  results->raise();
  results->activateWindow();
}

}  // namespace kaldo
