// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/locus_comparison.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace kaldo {

namespace {

constexpr std::array<std::string_view, 12> kLabels = {
    "Erreur",           "cond_aucun",        "cond_complet",
    "cond_un_a_chacun", "cond_RR_par1_seul", "cond_RR_par2_seul",
    "cond_RJ_R_par1",   "cond_RJ_R_par2",    "cond_RJ_J_par1",
    "cond_RJ_J_par2",   "cond_RJ_RJ_par1",   "cond_RJ_RJ_par2"};

bool Carries(const LocusGenotype& parent, AlleleSize allele) {
  return !parent.IsMissing() && (parent.allele1 == allele || parent.allele2 == allele);
}

LocusCondition ConditionOfHomozygote(const LocusComparison& locus) {
  if (locus.R_in_par1 && locus.R_in_par2) {
    return LocusCondition::kComplete;
  }
  if (locus.R_in_par1) {
    return LocusCondition::kRrOnlyPar1;
  }
  return locus.R_in_par2 ? LocusCondition::kRrOnlyPar2 : LocusCondition::kNone;
}

LocusCondition ConditionOfHeterozygote(const LocusComparison& locus) {
  const bool complete =
      (locus.R_in_par1 && locus.J_in_par2) || (locus.J_in_par1 && locus.R_in_par2);
  if (complete) {
    return LocusCondition::kComplete;
  }
  // Without a cross match, two parents can share an allele only if it is the same single one.
  const bool in_par1 = locus.R_in_par1 || locus.J_in_par1;
  const bool in_par2 = locus.R_in_par2 || locus.J_in_par2;
  if (in_par1 && in_par2) {
    return LocusCondition::kOneToEach;
  }
  if (in_par1) {
    return locus.R_in_par1 && locus.J_in_par1 ? LocusCondition::kBothInPar1
           : locus.R_in_par1                  ? LocusCondition::kRInPar1
                                              : LocusCondition::kJInPar1;
  }
  if (in_par2) {
    return locus.R_in_par2 && locus.J_in_par2 ? LocusCondition::kBothInPar2
           : locus.R_in_par2                  ? LocusCondition::kRInPar2
                                              : LocusCondition::kJInPar2;
  }
  return LocusCondition::kNone;
}

BasePairs SingleDistance(AlleleSize allele, const LocusGenotype& parent) {
  return std::min(Distance(allele, parent.allele1), Distance(allele, parent.allele2));
}

BasePairs DistanceTo(Unexplained unexplained, const LocusGenotype& offspring,
                     const LocusGenotype& parent) {
  switch (unexplained) {
    case Unexplained::kNothing:
      return BasePairs{0};
    case Unexplained::kR:
      return SingleDistance(offspring.allele1, parent);
    case Unexplained::kJ:
      return SingleDistance(offspring.allele2, parent);
    case Unexplained::kEither:
      break;
  }
  return std::min(SingleDistance(offspring.allele1, parent),
                  SingleDistance(offspring.allele2, parent));
}

UnitDistances OffsetOf(BasePairs distance, BasePairs unit_distance) {
  const std::int32_t unit = unit_distance.Value();
  return UnitDistances{unit > 0 ? distance.Value() / unit : 0};
}

}  // namespace

std::string_view Label(LocusCondition condition) {
  return kLabels.at(static_cast<std::size_t>(condition));
}

Measured MeasuredUnder(LocusCondition condition) {
  switch (condition) {
    case LocusCondition::kNone:
      return {.par1 = Unexplained::kEither, .par2 = Unexplained::kEither};
    case LocusCondition::kRrOnlyPar1:
    case LocusCondition::kJInPar1:
      return {.par1 = Unexplained::kNothing, .par2 = Unexplained::kR};
    case LocusCondition::kRrOnlyPar2:
    case LocusCondition::kJInPar2:
      return {.par1 = Unexplained::kR, .par2 = Unexplained::kNothing};
    case LocusCondition::kRInPar1:
      return {.par1 = Unexplained::kNothing, .par2 = Unexplained::kJ};
    case LocusCondition::kRInPar2:
      return {.par1 = Unexplained::kJ, .par2 = Unexplained::kNothing};
    case LocusCondition::kBothInPar1:
      return {.par1 = Unexplained::kNothing, .par2 = Unexplained::kEither};
    case LocusCondition::kBothInPar2:
      return {.par1 = Unexplained::kEither, .par2 = Unexplained::kNothing};
    case LocusCondition::kError:
    case LocusCondition::kComplete:
    case LocusCondition::kOneToEach:
      break;
  }
  return {};
}

Measured MeasuredAt(const LocusComparison& locus) {
  if (!locus.par1.IsMissing() && !locus.par2.IsMissing()) {
    return MeasuredUnder(locus.condition);
  }
  const auto measured = [](const LocusGenotype& parent) {
    return parent.IsMissing() ? Unexplained::kNothing : Unexplained::kEither;
  };
  return {measured(locus.par1), measured(locus.par2)};
}

BasePairs Distance(AlleleSize a, AlleleSize b) {
  const auto difference =
      static_cast<std::int32_t>(a.Value()) - static_cast<std::int32_t>(b.Value());
  return BasePairs{std::abs(difference)};
}

LocusComparison ClassifyLocus(const LocusGenotype& offspring, const LocusGenotype& par1,
                              const LocusGenotype& par2, BasePairs unit_distance) {
  LocusComparison locus;
  locus.offspring = offspring;
  locus.par1 = par1;
  locus.par2 = par2;
  locus.unit_distance = unit_distance;
  locus.R_in_par1 = Carries(par1, offspring.allele1);
  locus.J_in_par1 = Carries(par1, offspring.allele2);
  locus.R_in_par2 = Carries(par2, offspring.allele1);
  locus.J_in_par2 = Carries(par2, offspring.allele2);
  locus.homozygous = offspring.allele1 == offspring.allele2;
  locus.condition =
      locus.homozygous ? ConditionOfHomozygote(locus) : ConditionOfHeterozygote(locus);

  if (!offspring.IsMissing()) {
    const Measured measured = MeasuredAt(locus);
    locus.distance_par1 = DistanceTo(measured.par1, offspring, par1);
    locus.distance_par2 = DistanceTo(measured.par2, offspring, par2);
    locus.offset_par1 = OffsetOf(locus.distance_par1, unit_distance);
    locus.offset_par2 = OffsetOf(locus.distance_par2, unit_distance);
  }
  return locus;
}

}  // namespace kaldo
