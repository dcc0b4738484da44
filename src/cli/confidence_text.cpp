// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/confidence_text.h"

#include <fmt/format.h>

#include "allocation/allocation_confidence.h"
#include "allocation/allocation_file_names.h"
#include "confidence/confidence_summary.h"
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

std::string NoteOn(const ConfidenceResult& confidence, bool with_relatives) {
  // Where no error rates were estimated, relatives were not asked about either.
  if (confidence.error_rates.empty()) {
    return {};
  }
  const auto note = RelativesNote(with_relatives, confidence.relatives_gain);
  return note.empty() ? std::string() : fmt::format("  {}\n", note);
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
         SideRows(summary, settings.confidence.level) + WrongNames(summary) + LociToLookAt(run) +
         NoteOn(*confidence, settings.confidence.relatives);
}

}  // namespace kaldo
