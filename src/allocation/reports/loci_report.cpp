// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/reports/loci_report.h"

#include <array>
#include <functional>
#include <optional>

#include "runs/tsv_row.h"

namespace kaldo {

namespace {

using Figure = std::optional<double>;

/// What the last line tells of a column.
enum class Together { kNothing, kMean, kExclusion };

struct Column {
  std::string_view head;
  std::function<Figure(const LocusQuality&)> figure;
  Together together = Together::kMean;
};

auto Count(std::size_t LocusQuality::*member) {
  return
      [member](const LocusQuality& locus) -> Figure { return static_cast<double>(locus.*member); };
}

auto Variability(double LocusVariability::*member) {
  return [member](const LocusQuality& locus) {
    return locus.variability ? Figure((*locus.variability).*member) : std::nullopt;
  };
}

auto Exclusion(double ExclusionProbabilities::*member) {
  return [member](const LocusQuality& locus) {
    return locus.exclusions ? Figure((*locus.exclusions).*member) : std::nullopt;
  };
}

Figure UnitDistanceOf(const LocusQuality& locus) {
  return locus.unit_distance ? Figure(locus.unit_distance->Value()) : std::nullopt;
}

Figure MismatchesOf(const LocusQuality& locus) {
  return locus.mismatches ? Figure(static_cast<double>(locus.mismatches->mismatches))
                          : std::nullopt;
}

/// Told as TRUE and FALSE, which statistics programs know.
constexpr std::string_view kInStep = "in_step";

std::array<Column, 14> Columns() {
  return {{
      {"alleles", Count(&LocusQuality::alleles)},
      {"unit_distance", UnitDistanceOf, Together::kNothing},
      {kInStep, [](const LocusQuality& locus) { return Figure(locus.is_in_step ? 1 : 0); },
       Together::kNothing},
      {"typed_parents", Count(&LocusQuality::typed_parents)},
      {"typed_offspring", Count(&LocusQuality::typed_offspring)},
      {"observed_heterozygosity", Variability(&LocusVariability::observed_heterozygosity)},
      {"expected_heterozygosity", Variability(&LocusVariability::expected_heterozygosity)},
      {"pic", Variability(&LocusVariability::pic)},
      {"exclusion_one_parent", Exclusion(&ExclusionProbabilities::one_parent),
       Together::kExclusion},
      {"exclusion_second_parent", Exclusion(&ExclusionProbabilities::second_parent),
       Together::kExclusion},
      {"exclusion_pair", Exclusion(&ExclusionProbabilities::pair), Together::kExclusion},
      {"homozygote_mismatches", MismatchesOf},
      {"null_allele_frequency", Variability(&LocusVariability::null_allele_frequency)},
      {"error_rate", [](const LocusQuality& locus) { return locus.error_rate; }},
  }};
}

/// One locus alone must exclude: 1 - product over the loci of (1 - P).
Figure AllTogether(const Column& column, std::span<const LocusQuality> loci) {
  double sum = 0;
  double missed = 1;
  double defined = 0;
  for (const LocusQuality& locus : loci) {
    if (const Figure figure = column.figure(locus)) {
      sum += *figure;
      missed *= 1 - *figure;
      defined += 1;
    }
  }
  if (defined == 0 || column.together == Together::kNothing) {
    return std::nullopt;
  }
  return column.together == Together::kExclusion ? 1 - missed : sum / defined;
}

}  // namespace

std::string LociReport(const LociList& names, std::span<const LocusQuality> loci) {
  const auto columns = Columns();
  TsvRow heads;
  heads.Plain("locus");
  for (const Column& column : columns) {
    heads.Plain(column.head);
  }
  std::string text = heads.Line();
  for (const LocusQuality& locus : loci) {
    TsvRow row;
    row.Text(names.Name(locus.locus));
    for (const Column& column : columns) {
      if (column.head == kInStep) {
        row.Plain(locus.is_in_step ? "TRUE" : "FALSE");
      } else {
        row.NumberIfAny(column.figure(locus));
      }
    }
    text += row.Line();
  }
  TsvRow all;
  all.Plain("ALL");
  for (const Column& column : columns) {
    all.NumberIfAny(AllTogether(column, loci));
  }
  return text + all.Line();
}

}  // namespace kaldo
