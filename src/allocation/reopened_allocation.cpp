// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/reopened_allocation.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "allocation/allocation_file_names.h"
#include "allocation/allocation_portions.h"
#include "allocation/reopened_confidence.h"
#include "allocation/reports/genotype_text.h"
#include "allocation/reports/max_like_report.h"
#include "allocation/reports/result_line.h"
#include "allocation/reports/sequence_report.h"
#include "base/number_text.h"
#include "base/report_lines.h"
#include "method/pair_scan.h"

namespace kaldo {

namespace {

using Slots = std::vector<Slot>;

constexpr std::string_view kEndOfBlock = "*************************************\n\n";

/// Finds parents again by what the reports show of them.
class ShownParents {
 public:
  ShownParents(const AllocationInput& input, const AllocationResult& result) : input_(input) {
    for (std::uint32_t k = 0; k < input.Parents().end; ++k) {
      const std::string line = IndividualLine(input, result, Slot{k});
      const std::size_t genotypes = line.find('\t') + 1;
      by_genotypes_[line.substr(genotypes, line.size() - genotypes - 1)].push_back(Slot{k});
    }
  }

  /// Those with these genotypes, in file order.
  Slots Alike(const std::string& genotypes) const {
    const auto found = by_genotypes_.find(genotypes);
    return found == by_genotypes_.end() ? Slots() : found->second;
  }

  /// Those that a line of the pairs report may show.
  Slots InLine(std::string_view line) const {
    const std::size_t tab = line.find('\t');
    if (tab == std::string_view::npos) {
      return {};
    }
    Slots slots = Alike(std::string(line.substr(tab + 1)));
    std::erase_if(slots, [&](Slot slot) {
      return NameField(input_.table.Name(slot).Text()) != line.substr(0, tab);
    });
    return slots;
  }

 private:
  const AllocationInput& input_;
  std::unordered_map<std::string, Slots> by_genotypes_;
};

/// Parents that may be the two of a pair.
struct MaybePair {
  Slots first;
  Slots second;
};

/// What "Max like pairs.txt" says of an offspring.
struct ToldPairs {
  bool more_than_five = false;
  std::vector<MaybePair> pairs;
};

/// Reads the outcomes of all offspring, one after the other.
class OutcomeReader {
 public:
  OutcomeReader(const AllocationSettings& settings, const AllocationInput& input,
                AllocationResult& result)
      : settings_(settings),
        input_(input),
        result_(result),
        parents_(input, result),
        matrices_(BuildMatrices(settings, input)) {}

  /// The block of the offspring in either report, and its line in the results. False where they do
  /// not fit the files.
  bool Read(std::size_t offspring, std::string_view pairs_block, std::string_view matrices_block,
            const std::string& line) {
    AllocationOutcome& outcome = result_.outcomes[offspring];
    const ToldPairs told = Told(pairs_block, matrices_block);
    outcome.more_than_five = told.more_than_five;
    for (const MaybePair& pair : told.pairs) {
      if (!TakePair(offspring, pair, line)) {
        return false;
      }
    }
    if (outcome.HasPair()) {
      outcome.best_likelihood = Likelihood(SlotOf(offspring), outcome.pairs.front());
    }
    return ResultLine(settings_.flow, input_, result_, offspring) == line &&
           MaxLikeBlock(input_, result_, offspring) == pairs_block;
  }

 private:
  Slot SlotOf(std::size_t offspring) const {
    return Slot{input_.offspring.begin + static_cast<std::uint32_t>(offspring)};
  }

  ToldPairs Told(std::string_view pairs_block, std::string_view matrices_block) const {
    ReportLines lines(pairs_block);
    lines.Next();
    lines.Next();  // the offspring itself
    ToldPairs told;
    while (!lines.AtEnd()) {
      const std::string_view line = lines.Next();
      if (line == "more than 5 potential pairs") {
        told.more_than_five = true;
        told.pairs.push_back(PairInMatrices(matrices_block));
      } else if (line == "Parents") {
        const std::string_view first = lines.Next();
        if (first != "none") {
          told.pairs.push_back({parents_.InLine(first), parents_.InLine(lines.Next())});
        }
      }
    }
    return told;
  }

  /// Whoever has the genotypes of the pair that the matrices show.
  MaybePair PairInMatrices(std::string_view block) const {
    ReportLines lines(block);
    lines.SkipBehind("Rejeton");
    std::array<std::string, 2> genotypes;
    for (std::size_t locus = 0; locus < result_.loci.loci.size(); ++locus) {
      lines.Next();  // an empty one
      const auto cells = CellsOf(lines.Next());
      for (std::size_t parent = 0; parent < genotypes.size() && cells.size() > 2; ++parent) {
        std::string cell(cells[parent + 1]);
        std::erase(cell, ' ');
        genotypes.at(parent) += cell + ' ';
      }
    }
    return {parents_.Alike(genotypes[0]), parents_.Alike(genotypes[1])};
  }

  /// Takes the first of the scan among the pairs that it may be. The first pair of an offspring
  /// decides, so it must lead to its line; equals in name and genotypes are met in file order.
  bool TakePair(std::size_t offspring, const MaybePair& maybe, const std::string& line) {
    AllocationOutcome& outcome = result_.outcomes[offspring];
    const AllowedPairs all;
    const AllowedPairs& allowed = input_.allowed.empty() ? all : input_.allowed[offspring];
    const OffspringGroups groups(settings_.flow, input_.groups, allowed);
    for (const CandidateGroup& group : groups.Groups()) {
      for (const Slot first : maybe.first) {
        if (!group.first.Holds(first) || !allowed.IsCandidate(first)) {
          continue;
        }
        const SlotRange partners = PartnersOf(groups.Pairing(), group, first.Value());
        for (const Slot second : maybe.second) {
          if (partners.Holds(second) && allowed.IsCandidate(second) &&
              Fits(offspring, {first, second}, line, outcome)) {
            return true;
          }
        }
      }
    }
    return false;
  }

  bool Fits(std::size_t offspring, ParentPair pair, const std::string& line,
            AllocationOutcome& outcome) {
    const auto known = outcome.Pairs();
    const std::size_t place = known.size();
    if (place == KeptPairs::kCapacity ||
        std::find(known.begin(), known.end(), pair) != known.end()) {
      return false;
    }
    outcome.pairs.at(place) = pair;
    if (place > 0) {
      outcome.pair_entries += 2;
      return true;
    }
    outcome.pair_entries = 2;
    DecideSides(input_.table, SlotOf(offspring), result_.loci, settings_.tolerance, outcome);
    if (ResultLine(settings_.flow, input_, result_, offspring) == line) {
      return true;
    }
    outcome = {.more_than_five = outcome.more_than_five};
    return false;
  }

  /// The likelihood of one pair, as the scan multiplies it.
  double Likelihood(Slot offspring, ParentPair pair) const {
    GenotypeTable three(input_.table.NumberOfLoci());
    for (const Slot slot : {pair.parent1, pair.parent2, offspring}) {
      const Slot copy = three.AddIndividual(input_.table.Name(slot).Text());
      for (const LocusIndex locus : result_.loci.loci) {
        three.Genotype(locus, copy) = input_.table.Genotype(locus, slot);
      }
    }
    TransmissionScores scores(result_.loci.loci.size(), 2);
    ComputeTransmissionScores(three, Slot{2}, result_.loci.loci, matrices_, scores);
    KeptPairs kept(settings_.flow, {});
    (void)ScanRowOfPairs(scores, Slot{0}, {1, 2}, kept);
    return kept.BestLikelihood();
  }

  const AllocationSettings& settings_;
  const AllocationInput& input_;
  AllocationResult& result_;
  ShownParents parents_;
  std::vector<TransmissionMatrix> matrices_;
};

/// Cuts the next block, with its end, off a report.
std::string_view NextBlock(std::string_view& rest, std::string_view end, std::size_t behind) {
  const std::size_t at = rest.find(end);
  const std::size_t size =
      at == std::string_view::npos ? rest.size() : std::min(rest.size(), at + end.size() + behind);
  const std::string_view block = rest.substr(0, size);
  rest.remove_prefix(size);
  return block;
}

/// Reads all outcomes. The name of a report that does not fit where one does not.
std::optional<Problem> ReadOutcomes(const AllocationSettings& settings,
                                    const AllocationInput& input, const RecordedReports& reports,
                                    RunObserver& observer, AllocationResult& result) {
  const auto lines_text = reports.Read(kAllocationResultsFile);
  const auto pairs_text = reports.Read(kMaxLikePairsFile);
  const auto matrices_text = reports.Read(kTransmissionMatricesFile);
  for (const auto* text : {&lines_text, &pairs_text, &matrices_text}) {
    if (!*text) {
      return text->error();
    }
  }
  ReportLines lines(*lines_text);
  lines.SkipBehind("OFFSPRING\t");
  lines.Next();
  std::string_view pairs = *pairs_text;
  std::string_view matrices = *matrices_text;
  constexpr std::string_view kLastOfMatrices = "\noffset_par2_depasse = ";
  constexpr std::size_t kAnswer = 5;  // "Oui" or "Non", its line end and an empty line

  OutcomeReader reader(settings, input, result);
  result.counters.emplace_back();
  observer.OnPart("Reading the results", input.NumberOfOffspring());
  for (std::size_t k = 0; k < input.NumberOfOffspring(); ++k) {
    if (observer.StopRequested()) {
      throw RunStopped();
    }
    const std::string line = std::string(lines.Next()) + '\n';
    if (!reader.Read(k, NextBlock(pairs, kEndOfBlock, 0),
                     NextBlock(matrices, kLastOfMatrices, kAnswer), line)) {
      return reports.Unreadable(kMaxLikePairsFile);
    }
    result.counters.back().Count(result.outcomes[k]);
    observer.OnSteps(1);
  }
  return std::nullopt;
}

/// The counts that lead to these shares of whole offspring, in the order of the sequence report.
AllocationCounters CountersOf(Flow flow, const std::vector<std::string_view>& cells,
                              std::size_t offspring) {
  const auto count = [&](std::size_t cell) {
    const auto share = cell < cells.size() ? ParseDouble(cells[cell]) : std::nullopt;
    return std::round(share.value_or(0) * static_cast<double>(offspring));
  };
  return flow == Flow::kSexed ? AllocationCounters{count(3), count(4), count(5), count(6)}
                              : AllocationCounters{count(2), count(3), 0, count(4)};
}

/// The shares of the combinations of loci before the last one.
std::optional<Problem> ReadSequence(const AllocationSettings& then, const AllocationInput& input,
                                    const RecordedReports& reports, AllocationResult& result) {
  const auto text = reports.Read(kSequenceResultsFile);
  if (!text) {
    return text.error();
  }
  ReportLines lines(*text);
  lines.SkipBehind("Combin #");
  std::vector<AllocationCounters> counters;
  counters.reserve(input.combinations.size());
  for (std::size_t k = 0; k + 1 < input.combinations.size(); ++k) {
    counters.push_back(CountersOf(then.flow, CellsOf(lines.Next()), input.NumberOfOffspring()));
    result.shares.insert(result.shares.end() - 1, SharesOf(then.flow, counters.back()));
  }
  result.counters.insert(result.counters.begin(), counters.begin(), counters.end());
  return SequenceReport(then, input, result) == *text
             ? std::nullopt
             : std::optional(reports.Unreadable(kSequenceResultsFile));
}

}  // namespace

tl::expected<ReopenedAllocation, Problem> ReopenAllocation(const AllocationSettings& then,
                                                           const AllocationSettings& now,
                                                           const RunRecord& record,
                                                           const RecordedReports& reports,
                                                           RunObserver& observer) {
  auto input = LoadAllocationInput(now);
  if (!input) {
    return tl::unexpected(std::move(input.error()));
  }
  AllocationResult result;
  result.folder = record.folder;
  result.threads = static_cast<unsigned>(record.threads);
  result.started = TimeOfDate(record.date);
  result.duration = std::chrono::duration<double>(record.duration_seconds);
  result.stepping = CheckStepping(input->loci, input->catalogues);
  result.loci = LociOfCombination(*input, input->combinations.back());
  result.outcomes.resize(input->NumberOfOffspring());
  if (auto problem = ReadOutcomes(now, *input, reports, observer, result)) {
    return tl::unexpected(std::move(*problem));
  }
  result.shares.push_back(SharesOf(now.flow, result.counters.back()));
  if (now.sequence) {
    if (auto problem = ReadSequence(then, *input, reports, result)) {
      return tl::unexpected(std::move(*problem));
    }
  }
  auto without_certainty = AddRecordedConfidence(now, *input, reports, result);
  return ReopenedAllocation{{std::move(*input), std::move(result)}, std::move(without_certainty)};
}

bool IsOnlyFirstPairTold(const AllocationOutcome& outcome) {
  return outcome.more_than_five && outcome.Pairs().size() == 1;
}

}  // namespace kaldo
