// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/reopened_confidence.h"

#include <algorithm>
#include <limits>
#include <unordered_map>

#include "allocation/allocation_confidence.h"
#include "allocation/allocation_file_names.h"
#include "allocation/reports/confidence_report.h"
#include "allocation/reports/loci_report.h"
#include "allocation/reports/result_line.h"
#include "base/number_text.h"
#include "base/report_lines.h"
#include "confidence/recovered_shares.h"
#include "genotypes/separator.h"
#include "runs/tsv_row.h"

namespace kaldo {

namespace {

using Cells = std::vector<std::string_view>;

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

// The places of the cells in a line, see ConfidenceHead.
constexpr std::size_t kFirstSide = 2;
constexpr std::size_t kCellsOfSide = 8;
constexpr std::size_t kExplanation = kFirstSide + 2 * kCellsOfSide;
constexpr std::size_t kTypedOfCandidates = kExplanation + 8;
constexpr std::size_t kNumberOfCells = kTypedOfCandidates + 2;

/// The explanation in which the parent of a side was not collected, but the other one was.
constexpr std::array<Explanation, 2> kWithout = {Explanation::kSecond, Explanation::kFirst};

/// Nothing for "NA".
std::optional<double> NumberIn(std::string_view cell) { return ParseDouble(cell); }

std::optional<Verdict> VerdictIn(std::string_view cell) {
  for (const Verdict verdict : {Verdict::kNamed, Verdict::kUncollected, Verdict::kOpen}) {
    if (Label(verdict) == cell) {
      return verdict;
    }
  }
  return std::nullopt;
}

/// Reads the lines of the offspring.
class ConfidenceReader {
 public:
  ConfidenceReader(Flow flow, const AllocationInput& input, const AllocationResult& result)
      : flow_(flow), input_(input), result_(result) {
    for (std::uint32_t k = 0; k < input.Parents().end; ++k) {
      const std::string_view name = input.table.Name(Slot{k}).Text();
      if (!IsSeparatorName(name)) {
        std::string cell = TsvRow().Text(name).Line();
        cell.pop_back();  // the line end
        by_cell_[cell].push_back(Slot{k});
      }
    }
  }

  /// What a line tells of an offspring; nothing where it cannot be read.
  std::optional<OffspringConfidence> Read(std::size_t place, const Cells& cells) const {
    if (cells.size() != kNumberOfCells) {
      return std::nullopt;
    }
    OffspringConfidence read;
    const Slot slot{input_.offspring.begin + static_cast<std::uint32_t>(place)};
    read.is_typed = input_.table.NumberOfTyped(result_.loci.loci, slot) > 0;
    read.is_possible = cells[kExplanation] != "NA";
    for (std::size_t side = 0; side < read.sides.size(); ++side) {
      if (!ReadSide(place, cells, side, read)) {
        return std::nullopt;
      }
    }
    ReadAssignment(cells, read);
    read.ln_best_second = NumberIn(cells[kExplanation + 4]);
    read.ln_pair_unknown = {NumberIn(cells[kExplanation + 5]), NumberIn(cells[kExplanation + 6])};
    read.tied_pairs = static_cast<std::uint64_t>(NumberIn(cells[kExplanation + 7]).value_or(0));
    return read;
  }

 private:
  /// A collected parent by its name, and by its typed loci where these are told. `reported` comes
  /// first among several of that name, but none of `others`.
  std::optional<Slot> ParentIn(std::string_view cell, std::size_t side, std::string_view typed,
                               std::optional<Slot> reported,
                               std::span<const std::optional<Slot>> others) const {
    const auto named = by_cell_.find(std::string(cell));
    if (named == by_cell_.end()) {
      return std::nullopt;
    }
    const bool second = flow_ == Flow::kSexed && side == 1;
    const SlotRange range = second ? input_.second_parents : input_.first_parents;
    const auto may_be = [&](Slot slot) {
      const std::size_t loci = input_.table.NumberOfTyped(result_.loci.loci, slot);
      return range.Holds(slot) && (typed.empty() || typed == std::to_string(loci)) &&
             std::find(others.begin(), others.end(), slot) == others.end();
    };
    const auto& slots = named->second;
    if (reported && may_be(*reported) &&
        std::find(slots.begin(), slots.end(), *reported) != slots.end()) {
      return reported;
    }
    const auto found = std::find_if(slots.begin(), slots.end(), may_be);
    return found == slots.end() ? std::nullopt : std::optional(*found);
  }

  /// False where the line does not tell what it should.
  bool ReadSide(std::size_t place, const Cells& cells, std::size_t side,
                OffspringConfidence& read) const {
    const auto cell = [&](std::size_t k) { return cells[kFirstSide + side * kCellsOfSide + k]; };
    SideConfidence& one = read.sides.at(side);
    const AllocatedSides sides = SidesOf(flow_, result_.outcomes[place]);
    const auto reported = (side == 0 ? sides.first : sides.second).parent;
    one.p_uncollected = NumberIn(cell(5)).value_or(0);
    one.p_reported = NumberIn(cell(7));
    std::vector<std::optional<Slot>> others;
    if (flow_ == Flow::kNonSexed && side == 1 && read.sides[0].candidate) {
      others.emplace_back(read.sides[0].candidate->slot);
    }
    if (const auto p = NumberIn(cell(1))) {
      const auto parent = ParentIn(cell(0), side, cells[kTypedOfCandidates + side],
                                   p == one.p_reported ? reported : std::nullopt, others);
      if (!parent) {
        return false;
      }
      one.candidate = {*parent, *p};
      others.emplace_back(parent);
    }
    if (const auto p = NumberIn(cell(4))) {
      const auto parent =
          ParentIn(cell(3), side, "", p == one.p_reported ? reported : std::nullopt, others);
      if (!parent) {
        return false;
      }
      one.runner_up = {*parent, *p};
    }
    const auto verdict = VerdictIn(cell(2));
    one.verdict = verdict.value_or(Verdict::kOpen);
    return verdict.has_value();
  }

  void ReadAssignment(const Cells& cells, OffspringConfidence& read) const {
    if (!read.is_possible) {
      return;
    }
    const std::string_view name = cells[kExplanation];
    read.best_explanation = name == "both"     ? Explanation::kBoth
                            : name == "none"   ? Explanation::kNone
                            : name == "mother" ? Explanation::kSecond
                                               : Explanation::kFirst;
    for (std::size_t side = 0; side < read.best.size(); ++side) {
      if (read.best_explanation == kWithout.at(side) || name == "none") {
        continue;
      }
      const std::array<std::optional<Slot>, 1> other = {side == 1 ? read.best[0] : std::nullopt};
      const auto& candidate = read.sides.at(side).candidate;
      read.best.at(side) =
          ParentIn(cells[kExplanation + 1 + side], side, "",
                   candidate ? std::optional(candidate->slot) : std::nullopt, other);
    }
    read.p_best = NumberIn(cells[kExplanation + 3]).value_or(0);
  }

  Flow flow_;
  const AllocationInput& input_;
  const AllocationResult& result_;
  std::unordered_map<std::string, std::vector<Slot>> by_cell_;
};

/// Reads the posteriors of all offspring. False where the report does not fit the files.
bool ReadOffspring(Flow flow, const AllocationInput& input, std::string_view text,
                   AllocationResult& result) {
  const ConfidenceReader reader(flow, input, result);
  ReportLines lines(text);
  if (std::string(lines.Next()) + '\n' != ConfidenceHead(flow)) {
    return false;
  }
  for (std::size_t place = 0; place < result.outcomes.size(); ++place) {
    const std::string_view line = lines.Next();
    const auto read = reader.Read(place, CellsOf(line));
    if (!read) {
      return false;
    }
    result.confidence->offspring.push_back(*read);
    if (ConfidenceLine(flow, input, result, place) != std::string(line) + '\n') {
      return false;
    }
  }
  return lines.AtEnd();
}

ExplanationShares SharesOf(const AllocationSettings& settings, const ConfidenceResult& confidence) {
  if (!settings.confidence.relatives) {
    return RecoverShares(settings.flow, confidence.offspring, confidence.ways);
  }
  ExplanationShares unknown;
  unknown.collected = kUnknown;
  unknown.standard_error = kUnknown;
  unknown.collected_by_side = {kUnknown, kUnknown};
  return unknown;
}

/// The last column of every locus, which rests on more than the posteriors.
std::vector<double> ErrorRatesIn(std::string_view text, std::size_t loci) {
  ReportLines lines(text);
  lines.Next();
  std::vector<double> rates;
  rates.reserve(loci);
  for (std::size_t k = 0; k < loci; ++k) {
    rates.push_back(NumberIn(CellsOf(lines.Next()).back()).value_or(kUnknown));
  }
  return rates;
}

/// The lines of the loci, without that of all together: its means were taken from more digits.
std::string_view WithoutMeans(std::string_view text) {
  const std::size_t last = text.rfind("\nALL\t");
  return text.substr(0, last);
}

std::optional<Problem> ReadLoci(const AllocationSettings& settings, const AllocationInput& input,
                                const RecordedReports& reports, AllocationResult& result) {
  const auto text = reports.Read(kLociFile);
  if (!text) {
    return text.error();
  }
  result.confidence->error_rates = ErrorRatesIn(*text, result.loci.loci.size());
  const AllocationEvidence evidence(settings, input);
  result.loci_quality = QualityOfLoci(evidence.Input({}), *result.confidence);
  if (WithoutMeans(LociReport(input.loci, result.loci_quality)) != WithoutMeans(*text)) {
    result.loci_quality.clear();
    return reports.Unreadable(kLociFile);
  }
  return std::nullopt;
}

}  // namespace

std::optional<Problem> AddRecordedConfidence(const AllocationSettings& settings,
                                             const AllocationInput& input,
                                             const RecordedReports& reports,
                                             AllocationResult& result) {
  if (!settings.confidence.computed) {
    return std::nullopt;
  }
  result.confidence.emplace();
  // A run whose error model has a negative probability writes none.
  result.confidence->is_meaningful = reports.Has(kConfidenceFile);
  if (result.confidence->is_meaningful) {
    const auto text = reports.Read(kConfidenceFile);
    if (!text || !ReadOffspring(settings.flow, input, *text, result)) {
      result.confidence.reset();
      result.confidence_is_lost = true;
      return text ? reports.Unreadable(kConfidenceFile) : text.error();
    }
    result.confidence->ways = CountWays(settings.flow, input.groups);
    result.confidence->shares = SharesOf(settings, *result.confidence);
  }
  return ReadLoci(settings, input, reports, result);
}

}  // namespace kaldo
