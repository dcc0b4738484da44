// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/reports/condition_record.h"

#include <vector>

#include <fmt/format.h>

namespace kaldo {

namespace {

/// A parental allele and the offspring allele it may have become.
struct Couple {
  AlleleSize parental;
  AlleleSize offspring;
};

/// Every couple of a distinct parental allele with an allele that is to be explained.
std::vector<Couple> CouplesOf(Unexplained unexplained, const LocusGenotype& offspring,
                              const LocusGenotype& parent) {
  std::vector<Couple> couples;
  const auto add = [&](AlleleSize allele) {
    couples.push_back({parent.allele1, allele});
    if (parent.allele2 != parent.allele1) {
      couples.push_back({parent.allele2, allele});
    }
  };
  if (unexplained != Unexplained::kJ) {
    add(offspring.allele1);
  }
  if (unexplained != Unexplained::kR) {
    add(offspring.allele2);
  }
  return couples;
}

/// The measured parent's part of the correspondence: "[152,154]", "[dm=2,154]" or "[dm=2]".
std::string MeasuredPart(Unexplained unexplained, const LocusGenotype& offspring,
                         const LocusGenotype& parent, BasePairs distance) {
  std::vector<Couple> nearest;
  for (const Couple& couple : CouplesOf(unexplained, offspring, parent)) {
    if (Distance(couple.parental, couple.offspring) == distance) {
      nearest.push_back(couple);
    }
  }
  const Couple& first = nearest.front();
  if (nearest.size() == 1) {
    return fmt::format("[{},{}]", first.parental.Value(), first.offspring.Value());
  }
  if (unexplained == Unexplained::kEither) {
    return fmt::format("[dm={}]", distance.Value());
  }
  return fmt::format("[dm={},{}]", distance.Value(), first.offspring.Value());
}

/// "[*,*]" for an undefined parent; its partner as where it alone is measured.
std::string PartBesideUndefined(Unexplained unexplained, const LocusGenotype& offspring,
                                const LocusGenotype& parent, BasePairs distance) {
  if (parent.IsMissing()) {
    return "[*,*]";
  }
  return distance == BasePairs{0} ? "[]" : MeasuredPart(unexplained, offspring, parent, distance);
}

std::string Correspondence(const LocusComparison& locus) {
  if (locus.par1.IsMissing() || locus.par2.IsMissing()) {
    const Measured measured = MeasuredAt(locus);
    return fmt::format(
        "[{},{}]",
        PartBesideUndefined(measured.par1, locus.offspring, locus.par1, locus.distance_par1),
        PartBesideUndefined(measured.par2, locus.offspring, locus.par2, locus.distance_par2));
  }
  const Measured measured = MeasuredUnder(locus.condition);
  switch (locus.condition) {
    case LocusCondition::kComplete:
      return "[[],[]]";
    case LocusCondition::kOneToEach:
      return "[['#'],['#']]";
    case LocusCondition::kNone:
      return fmt::format("[[dm={}],[dm={}]]", locus.distance_par1.Value(),
                         locus.distance_par2.Value());
    default:
      break;
  }
  if (measured.par1 == Unexplained::kNothing) {
    return fmt::format(
        "[[],{}]", MeasuredPart(measured.par2, locus.offspring, locus.par2, locus.distance_par2));
  }
  return fmt::format("[{},[]]",
                     MeasuredPart(measured.par1, locus.offspring, locus.par1, locus.distance_par1));
}

}  // namespace

std::string ConditionRecord(const LocusComparison& locus) {
  if (locus.condition == LocusCondition::kError) {
    return std::string(Label(locus.condition));
  }
  std::string correspondence = "[*,*]";
  std::string distances = "[*,*]";
  std::string offsets = "[*,*]";
  if (!locus.offspring.IsMissing()) {
    correspondence = Correspondence(locus);
    distances =
        locus.condition == LocusCondition::kOneToEach
            ? "[#,#]"
            : fmt::format("[{},{}]", locus.distance_par1.Value(), locus.distance_par2.Value());
    offsets = fmt::format("[{},{}]", locus.offset_par1.Value(), locus.offset_par2.Value());
  }
  return fmt::format("{}\t\t{}\t\t{}\t/ {}\t{}", Label(locus.condition), correspondence, distances,
                     locus.unit_distance.Value(), offsets);
}

}  // namespace kaldo
