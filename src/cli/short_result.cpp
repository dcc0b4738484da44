// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/short_result.h"

#include <algorithm>

#include <fmt/format.h>

#include "allocation/allocation_file_names.h"
#include "allocation/findings.h"
#include "base/counted_text.h"
#include "base/version.h"
#include "cli/confidence_text.h"
#include "method/method_settings.h"
#include "runs/project_folder.h"
#include "runs/run_record.h"

namespace kaldo {

namespace {

std::string ParentsText(Flow flow, const AllocationInput& input) {
  std::size_t males = 0;
  for (const CandidateGroup& group : input.groups) {
    males += group.first.Size();
  }
  std::string text = Counted(input.NumberOfParents(), "parent", "parents");
  if (flow == Flow::kSexed) {
    text = fmt::format("{} and {}", Counted(males, "male", "males"),
                       Counted(input.NumberOfParents() - males, "female", "females"));
  }
  if (input.groups.size() > 1) {
    text += fmt::format(" in {} groups", input.groups.size());
  }
  return text;
}

std::string Row(const std::string& label, const AllocationShare& share) {
  return fmt::format("  {:<28}{:>8g}{:>9.4f}\n", label, share.number, share.quotient);
}

std::string Proportions(const AllocationShares& shares) {
  std::string text = fmt::format("  {:<28}{:>8}{:>9}\n", "", "number", "share");
  for (const AllocationShare& single : shares.singles) {
    text += Row(std::string(single.name), single);
  }
  for (const AllocationShare& pair : shares.pairs) {
    text += Row(fmt::format("pairs {}", pair.name), pair);
  }
  return text;
}

/// The share of sides allocated to a collected parent for each combination of a sequence.
std::string SequenceRows(const AllocationInput& input, const AllocationResult& result) {
  std::string text = "\nSides allocated to a collected parent, by number of loci:\n";
  for (std::size_t k = 0; k < result.shares.size(); ++k) {
    text += fmt::format("  {:>3}  + {:<15}{:>7.4f}\n", k + 1,
                        input.loci.Name(input.combinations[k].back()),
                        result.shares[k].sides_collected);
  }
  return text;
}

/// Said where so many offspring are without a pair that the model must be asked.
std::string DoubtsOfModel(const ErrorModel& model, std::size_t without, std::size_t offspring) {
  const bool excludes = model.kind == ErrorKind::kNoError || model.kind == ErrorKind::kNonUniform;
  if (!excludes || without * 10 < offspring) {
    return {};
  }
  return fmt::format(
      "  This model holds some readings for impossible: where one parent was not collected, no\n"
      "  other may fit in its place, and the collected one is lost, too. Compare with --error "
      "{}.\n",
      *ErrorModelKind().text(kErrorModelUnlessTold));
}

std::string Doubts(const ErrorModel& model, const AllocationResult& result) {
  const auto count = [&result](auto is_one) {
    return std::count_if(result.outcomes.begin(), result.outcomes.end(), is_one);
  };
  const auto ties = count(HasSeveralPairs);
  const auto marked = count([](const auto& outcome) { return outcome.more_than_five; });
  const auto without = count([](const auto& outcome) { return !outcome.HasPair(); });
  std::string text;
  if (ties > 0) {
    text += fmt::format(
        "  {} offspring have several equally likely pairs ({} more than five): the "
        "first found decided.\n",
        ties, marked);
  }
  if (without > 0) {
    text += fmt::format("  {} offspring have no possible pair.\n", without);
    text += DoubtsOfModel(model, static_cast<std::size_t>(without), result.outcomes.size());
  }
  return text.empty() ? text : '\n' + text;
}

std::string FilesWritten(const AllocationSettings& settings, const AllocationResult& result,
                         const std::vector<std::string>& exports) {
  std::string text = fmt::format("\nFiles in \"{}\":\n", settings.project);
  std::vector<std::string_view> files = {kAllocationResultsFile, kMaxLikePairsFile,
                                         kTransmissionMatricesFile, kSteppingErrorFile};
  if (settings.sequence) {
    files.insert(files.end(), {kSequenceResultsFile, kServiceFile});
  }
  if (KnowsCertainty(result)) {
    files.push_back(kConfidenceFile);
  }
  if (result.confidence) {
    files.push_back(kLociFile);
  }
  files.push_back(kRunRecordFile);
  for (const std::string_view file : files) {
    text += fmt::format("  {}\n", file.substr(1));
  }
  for (const std::string& file : exports) {
    text += fmt::format("  {}\n", file);
  }
  return text;
}

}  // namespace

std::string InputSummary(Flow flow, const AllocationInput& input) {
  return fmt::format("{}, {} offspring ({}), {} of {} in use, {} digits per field",
                     ParentsText(flow, input), input.NumberOfOffspring(),
                     Counted(input.NumberOfMissingGenotypes(), "missing locus", "missing loci"),
                     input.loci.LociInUse().size(), Counted(input.loci.Count(), "locus", "loci"),
                     input.digits_per_field);
}

std::string ShortResult(const AllocationSettings& settings, const AllocationRun& run,
                        const std::vector<std::string>& exports) {
  const auto& [input, result] = run;
  std::string text = fmt::format("KALDO {}, {} allocation\n", Version(),
                                 settings.flow == Flow::kSexed ? "sexed" : "non-sexed");
  text += fmt::format("  {}\n  error model {}, maximal offset tolerance {}\n\n",
                      InputSummary(settings.flow, input), ShortDescription(settings.error_model),
                      settings.tolerance.Value());
  text += Proportions(result.LastShares());
  if (settings.sequence) {
    text += SequenceRows(input, result);
  }
  text += Doubts(settings.error_model, result);
  text += ConfidenceText(settings, run);
  text += FilesWritten(settings, result, exports);
  return text + '\n' + std::string(ClosingSentence(result)) + '\n';
}

}  // namespace kaldo
