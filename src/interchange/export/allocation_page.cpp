// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/allocation_page.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>

#include <fmt/format.h>

#include "allocation/allocation_confidence.h"
#include "allocation/findings.h"
#include "base/counted_text.h"
#include "base/path_text.h"
#include "base/version.h"
#include "confidence/confidence_summary.h"
#include "confidence/effective_breeders.h"
#include "confidence/intervals.h"
#include "interchange/export/allocation_charts.h"
#include "interchange/export/allocation_tables.h"
#include "interchange/export/html_text.h"
#include "interchange/export/told_settings.h"
#include "method/error_model.h"

namespace kaldo {

namespace {

constexpr std::string_view kHead =
    "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
    "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
    "<title>Parents of the offspring</title>\n<style>\n"
    "body { font: 16px/1.5 sans-serif; color: #222; max-width: 62em; margin: 2em auto; "
    "padding: 0 1em; }\n"
    "h1 { font-size: 1.7em; } h2 { font-size: 1.25em; margin-top: 2em; }\n"
    ".answer { font-size: 1.15em; border-left: .3em solid #2a6f97; padding-left: .8em; }\n"
    ".wide { overflow-x: auto; }\n"
    "table { border-collapse: collapse; font-size: .85em; }\n"
    "th, td { padding: .15em .6em; border-bottom: 1px solid #ddd; text-align: left; }\n"
    "th { border-bottom: 2px solid #888; } td.n { text-align: right; }\n"
    ".sums td { overflow-wrap: anywhere; }\n"
    "svg { max-width: 100%; height: auto; } svg text { font: 13px sans-serif; fill: #222; }\n"
    "svg rect { fill: #2a6f97; }\n"
    "@media print {\n"
    "  body { font-size: 10pt; max-width: none; margin: 0; }\n"
    "  .wide { overflow: visible; } .wide table { font-size: 5.5pt; }\n"
    "  .wide th, .wide td { padding: 0 .15em; }\n"
    "  thead { display: table-header-group; } tr, svg { break-inside: avoid; }\n"
    "  h2 { break-after: avoid; }\n"
    "  @page { size: A4 landscape; margin: 12mm; }\n"
    "}\n</style>\n</head>\n<body>\n";

/// Columns of the table of allocations that a reader can do without.
constexpr std::array<std::string_view, 8> kTooMuch = {"candidate1", "candidate2",      "rank1",
                                                      "rank2",      "class",           "loci_typed",
                                                      "tied_pairs", "log10_likelihood"};

std::string Section(std::string_view title, const std::string& contents) {
  return fmt::format("<h2>{}</h2>\n{}", title, contents);
}

std::string Paragraph(std::string_view text) { return fmt::format("<p>{}</p>\n", HtmlText(text)); }

std::string Drawn(const CaptionedChart& chart) {
  return BarChart(chart.title, chart.bars) + Paragraph(chart.caption);
}

std::string Percent(double share) { return fmt::format("{:.1f} %", 100 * share); }

std::string Within(Interval interval) {
  return fmt::format("95 % interval {} to {}", Percent(interval.from), Percent(interval.to));
}

/// The page of one allocation, section by section.
class Page {
 public:
  Page(const ExportedStudy& study, const RunRecord& record)
      : study_(study), input_(study.Input()), result_(study.Result()), record_(record) {
    if (KnowsCertainty(result_)) {
      summary_ =
          SummaryOf(result_.confidence->offspring, ReportedBy(study.Settings().flow, result_));
    }
  }

  std::string Text() const {
    std::string text(kHead);
    text += "<h1>Parents of the offspring</h1>\n";
    text += fmt::format("<p class=\"answer\">{}</p>\n", HtmlText(Answer()));
    text += Section("What was read", ReadTable());
    text += Section("Allocations by class", Classes());
    text += Section("How sure the allocations are", Probabilities());
    text += Section("Offspring per parent", OffspringPerParent());
    text += Section("Loci", Loci());
    text += Section("Warnings", Warnings());
    text += Section("Every offspring",
                    "<div class=\"wide\">\n" +
                        HtmlTable(WithoutColumns(AllocationsTable(study_), kTooMuch)) + "</div>\n");
    text += Section("Settings and checksums",
                    "<div class=\"sums\">\n" + HtmlTable(SettingsTable(record_)) + "</div>\n");
    text += Section("Methods, ready to paste", Paragraph(Methods()));
    text += Section("Citation", Paragraph(fmt::format("The KALDO developers. KALDO, version {}. "
                                                      "Software, GPL-3.0-or-later.",
                                                      Version())));
    return text + "</body>\n</html>\n";
  }

 private:
  double Sides() const { return 2 * static_cast<double>(study_.NumberOfOffspring()); }

  std::string Answer() const {
    const double share = result_.LastShares().sides_collected;
    std::string answer = fmt::format(
        "Of the {} parents of {} offspring, {:g} were allocated to collected parents ({}; {})",
        Sides(), study_.NumberOfOffspring(), std::round(share * Sides()), Percent(share),
        Within(WilsonInterval(share, Sides())));
    if (!summary_) {
      return answer + ".";
    }
    answer = FindingsSentence(FindingsOf(result_)) + " " + answer;
    const ExplanationShares& shares = result_.confidence->shares;
    return fmt::format(
        "{}; by the likelihoods of all candidates {} of them were collected ({}), and {} of the {} "
        "parents that can be named with a probability of {:g} or more are expected to be wrong.",
        answer, Percent(shares.collected),
        Within(NormalInterval(shares.collected, shares.standard_error)),
        fmt::format("{:.1f}", summary_->wrong_names), summary_->Named(),
        study_.Settings().confidence.level);
  }

  std::string ReadTable() const {
    std::vector<std::vector<Cell>> rows;
    const auto add = [&rows](std::string what, std::string found) {
      rows.push_back({NameCell{std::move(what)}, NameCell{std::move(found)}});
    };
    const auto parents = study_.Parents();
    add("collected parents",
        fmt::format(
            "{}{}", parents.size(),
            input_.groups.size() > 1 ? fmt::format(" in {} groups", input_.groups.size()) : ""));
    if (study_.IsSexed()) {
      const auto males = std::count_if(parents.begin(), parents.end(), [&](Slot parent) {
        return study_.SexOf(parent) == Sex::kMale;
      });
      add("males", std::to_string(males));
      add("females", std::to_string(parents.size() - static_cast<std::size_t>(males)));
    }
    add("offspring", fmt::format("{} ({})", study_.NumberOfOffspring(),
                                 Counted(input_.NumberOfMissingGenotypes(), "undefined locus",
                                         "undefined loci")));
    add("loci in use", fmt::format("{} of {}", result_.loci.loci.size(), input_.loci.Count()));
    add("error model", ShortDescription(study_.Settings().error_model));
    add("maximal offset tolerance", std::to_string(study_.Settings().tolerance.Value()));
    return HtmlTable(
        {"", "", {"read", "found"}, rows.size(), [&rows](std::size_t row) { return rows[row]; }});
  }

  std::string Classes() const { return Drawn(ClassChart(study_)); }

  std::string Probabilities() const {
    if (!summary_) {
      return Paragraph("Probabilities were not computed.");
    }
    return Drawn(VerdictChart(study_, *summary_)) + Drawn(ProbabilityChart(study_, *summary_));
  }

  std::string OffspringPerParent() const { return Drawn(ParentsChart(study_)) + Families(); }

  std::string Families() const {
    if (!summary_) {
      return {};
    }
    const auto named = NamedParentsOf(result_.confidence->offspring);
    return Paragraph(SibshipsSentence(SibshipsOf(named))) +
           Paragraph(BreedersSentence(EffectiveBreedersOf(named)));
  }

  std::string Loci() const {
    if (result_.loci_quality.empty()) {
      return Paragraph("How much each locus tells was not computed.");
    }
    return "<div class=\"wide\">\n" + HtmlTable(LociTable(study_)) + "</div>\n";
  }

  /// A study that is sent as a whole tells the same: files by their names alone.
  std::string WithoutFolders(std::string text) const {
    for (const RecordedInput& input : record_.inputs) {
      const std::string name = PathText(FilePath(input.path).filename());
      for (std::size_t at = text.find(input.path); name != input.path && at != std::string::npos;
           at = text.find(input.path, at + name.size())) {
        text.replace(at, input.path.size(), name);
      }
    }
    return text;
  }

  std::string Warnings() const {
    if (record_.warnings.empty()) {
      return Paragraph("None.");
    }
    std::string text = "<ul>\n";
    for (const std::string& warning : record_.warnings) {
      text += fmt::format("<li>{}</li>\n", HtmlText(WithoutFolders(warning)));
    }
    return text + "</ul>\n";
  }

  std::string Methods() const {
    const AllocationSettings& settings = study_.Settings();
    std::string text = fmt::format(
        "Offspring were allocated to parents with KALDO {} ({} allocation, {} loci, error model "
        "{}, "
        "maximal offset tolerance {} unit distances). The most likely of all {} was found for each "
        "of the {} offspring; a parent of that pair that missed an allele of the offspring by more "
        "than the tolerance at any locus was taken as uncollected.",
        Version(), study_.IsSexed() ? "sexed" : "non-sexed", result_.loci.loci.size(),
        ShortDescription(settings.error_model), settings.tolerance.Value(),
        study_.IsSexed() ? "pairs of a collected male and a collected female"
                         : "pairs of collected parents",
        study_.NumberOfOffspring());
    if (summary_) {
      text += fmt::format(
          " Posterior probabilities of all candidates and of uncollected parents were computed "
          "with "
          "shares of collected parents estimated from all offspring; a parent was named at a "
          "probability of {:g} or more.",
          settings.confidence.level);
    }
    return text;
  }

  const ExportedStudy& study_;
  const AllocationInput& input_;
  const AllocationResult& result_;
  const RunRecord& record_;
  std::optional<ConfidenceSummary> summary_;
};

}  // namespace

std::string AllocationPage(const ExportedStudy& study, const RunRecord& record) {
  return Page(study, record).Text();
}

}  // namespace kaldo
