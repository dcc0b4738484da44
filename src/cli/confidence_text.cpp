// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/confidence_text.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "allocation/allocation_confidence.h"
#include "allocation/allocation_file_names.h"
#include "confidence/confidence_summary.h"
#include "confidence/identical_parents.h"
#include "confidence/relatives_note.h"

namespace kaldo {

namespace {

std::string SideRows(const ConfidenceSummary& summary, double level) {
  std::string text = fmt::format("  {:<28}{:>8}{:>9}\n", "", "sides", "share");
  const auto add = [&](const std::string& label, std::size_t sides) {
    text += fmt::format("  {:<28}{:>8}{:>9.4f}\n", label, sides,
                        static_cast<double>(sides) / static_cast<double>(summary.Sides()));
  };
  add(fmt::format("named, {:g} or more", std::max(level, kSureLevel)), summary.surely_named);
  if (level < kSureLevel) {
    add(fmt::format("named, {:g} to {:g}", level, kSureLevel), summary.named);
  }
  add("open", summary.open);
  add("not collected", summary.uncollected);
  return text;
}

std::string WrongNames(const ConfidenceSummary& summary) {
  std::string text;
  if (summary.Named() > 0) {
    text += fmt::format("  Of the {} sides named, {:.1f} are expected to be wrong.\n",
                        summary.Named(), summary.wrong_names);
  }
  if (summary.reported_improbable > 0) {
    text += fmt::format(
        "  {} names {} sides: {} have a probability below {:g}, {:.1f} are expected to be\n"
        "  wrong.\n",
        kAllocationResultsFile.substr(1), summary.reported, summary.reported_improbable,
        kImprobable, summary.wrong_reported);
  }
  return text;
}

/// Names the parents that share a side since they have the same genotypes: together they would
/// reach the level.
class SharedSides {
 public:
  SharedSides(const AllocationSettings& settings, const AllocationRun& run)
      : settings_(settings), run_(run) {
    std::array<std::vector<SlotRange>, 2> sides;
    for (const CandidateGroup& group : run.input.groups) {
      sides[0].push_back(group.first);
      sides[1].push_back(settings.flow == Flow::kSexed ? group.second : group.first);
    }
    for (std::size_t k = 0; k < 2; ++k) {
      identical_[k] = IdenticalParents(run.input.table, run.result.loci.loci, sides[k]);
    }
  }

  std::string Text() const {
    constexpr std::size_t kMostLines = 5;
    std::string text;
    std::size_t lines = 0;
    const auto& offspring = run_.result.confidence->offspring;
    for (std::size_t i = 0; i < offspring.size(); ++i) {
      for (std::size_t k = 0; k < 2; ++k) {
        if (IsShared(offspring[i].sides[k]) && ++lines <= kMostLines) {
          text += Line(i, k, offspring[i].sides[k]);
        }
      }
    }
    if (lines > kMostLines) {
      text += fmt::format("    and {} more\n", lines - kMostLines);
    }
    return text.empty() ? text : "  Sides of parents that no locus tells apart:\n" + text;
  }

 private:
  bool IsShared(const SideConfidence& side) const {
    return side.verdict == Verdict::kOpen && side.alike > 1 &&
           side.p_all_alike >= settings_.confidence.level;
  }

  std::string Line(std::size_t offspring, std::size_t k, const SideConfidence& side) const {
    constexpr std::size_t kMostNames = 4;
    const auto& table = run_.input.table;
    std::vector<std::string_view> names;
    for (const Slot slot : identical_[k].Like(side.candidate->slot)) {
      names.push_back(names.size() < kMostNames ? table.Name(slot).Text() : "...");
      if (names.size() > kMostNames) {
        break;
      }
    }
    const Slot slot{run_.input.offspring.begin + static_cast<std::uint32_t>(offspring)};
    return fmt::format("    {}: one of {} (together {:.2f})\n", table.Name(slot).Text(),
                       fmt::join(names, ", "), std::min(side.p_all_alike, 1.0));
  }

  const AllocationSettings& settings_;
  const AllocationRun& run_;
  std::array<IdenticalParents, 2> identical_;
};

/// Loci that do harm, each with what is odd about it.
std::string LociToLookAt(const AllocationRun& run) {
  std::string text;
  for (const LocusQuality& locus : run.result.loci_quality) {
    if (!IsWorthALook(locus)) {
      continue;
    }
    text += fmt::format("{}    {:<15}", text.empty() ? "  Loci to look at:\n" : "",
                        run.input.loci.Name(locus.locus));
    text += locus.error_rate ? fmt::format(" error rate {:.3f},", *locus.error_rate) : "";
    text += fmt::format(" null alleles {:.3f},",
                        locus.variability ? locus.variability->null_allele_frequency : 0);
    const auto found = locus.mismatches.value_or(HomozygoteMismatches{});
    text += fmt::format(" {} mismatches of homozygotes in {}\n", found.mismatches, found.compared);
  }
  return text;
}

/// The words of a sentence in lines of a hundred columns.
std::string Wrapped(std::string_view sentence) {
  constexpr std::size_t kMostColumns = 100;
  std::string text;
  while (!sentence.empty()) {
    std::size_t end = sentence.size();
    if (end > kMostColumns - 2) {
      end = sentence.rfind(' ', kMostColumns - 2);
    }
    text += fmt::format("  {}\n", sentence.substr(0, end));
    sentence.remove_prefix(std::min(end + 1, sentence.size()));
  }
  return text;
}

}  // namespace

std::string ConfidenceText(const AllocationSettings& settings, const AllocationRun& run) {
  const auto& confidence = run.result.confidence;
  if (!confidence) {
    return {};
  }
  if (!confidence->is_meaningful) {
    return fmt::format("\n{}\n", kNegativeProbabilitySentence);
  }
  const auto summary = SummaryOf(confidence->offspring, ReportedBy(settings.flow, run.result));
  return fmt::format("\nHow sure each allocation is:\n  {:<28}{:>17.4f}  standard error {:.4f}\n",
                     "parents collected", confidence->shares.collected,
                     confidence->shares.standard_error) +
         SideRows(summary, settings.confidence.level) + WrongNames(summary) +
         SharedSides(settings, run).Text() + LociToLookAt(run) +
         Wrapped(RelativesNote(settings.confidence.relatives, confidence->relatives_gain));
}

}  // namespace kaldo
