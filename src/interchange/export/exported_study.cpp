// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/exported_study.h"

#include <algorithm>
#include <utility>

#include "allocation/findings.h"
#include "genotypes/separator.h"

namespace kaldo {

namespace {

std::string_view ClassOf(Flow flow, bool first, bool second) {
  const auto names = PairClassNames(flow);
  if (flow == Flow::kSexed) {
    return names[first ? (second ? 0U : 1U) : (second ? 2U : 3U)];
  }
  return names[2U - (first ? 1U : 0U) - (second ? 1U : 0U)];
}

bool Names(const SideConfidence& side, std::optional<Slot> parent) {
  return parent && side.candidate && side.candidate->slot == *parent;
}

}  // namespace

ExportedSide ExportedStudy::SideOf(Slot offspring, const AllocationOutcome& outcome,
                                   bool is_first) const {
  ExportedSide side;
  if (!outcome.HasPair()) {
    return side;
  }
  const ParentPair pair = outcome.pairs.front();
  side.candidate = is_first ? pair.parent1 : pair.parent2;
  side.errors = is_first ? outcome.errors_par1 : outcome.errors_par2;
  side.status = (is_first ? outcome.par1_uncollected : outcome.par2_uncollected)
                    ? SideStatus::kOffset
                    : SideStatus::kCollected;
  const auto comparisons = CompareWithPair(input_.table, offspring, pair, result_.loci);
  UnitDistances largest{0};
  for (std::size_t k = 0; k < comparisons.size(); ++k) {
    const UnitDistances offset = is_first ? comparisons[k].offset_par1 : comparisons[k].offset_par2;
    if (offset > largest) {
      largest = offset;
      side.worst_locus = result_.loci.loci[k];
    }
  }
  side.max_offset = largest;
  return side;
}

void ExportedStudy::AddConfidence(std::size_t place, std::array<ExportedSide, 2>& sides) const {
  if (!KnowsCertainty(result_)) {
    return;
  }
  const OffspringConfidence& confidence = result_.confidence->offspring[place];
  for (std::size_t k = 0; k < sides.size(); ++k) {
    sides.at(k).probability =
        confidence.is_possible ? confidence.sides.at(k).p_reported : std::nullopt;
  }
  // Where sexes are not known the more probable candidate stands first there: a verdict goes to the
  // side that names the same individual.
  const bool crosses = !IsSexed() && (Names(confidence.sides[1], sides[0].Parent()) ||
                                      Names(confidence.sides[0], sides[1].Parent()));
  sides[0].verdict = confidence.sides.at(crosses ? 1 : 0).verdict;
  sides[1].verdict = confidence.sides.at(crosses ? 0 : 1).verdict;
}

ExportedOffspring ExportedStudy::Offspring(std::size_t place) const {
  ExportedOffspring offspring;
  offspring.slot = Slot{input_.offspring.begin + static_cast<std::uint32_t>(place)};
  const AllocationOutcome& outcome = result_.outcomes[place];
  offspring.outcome = &outcome;
  offspring.loci_typed = TypedLoci(offspring.slot);
  auto& sides = offspring.sides;
  sides = {SideOf(offspring.slot, outcome, true), SideOf(offspring.slot, outcome, false)};
  // A parent accepted alone stands first, as in the results.
  if (!IsSexed() && !sides[0].Parent() && sides[1].Parent()) {
    std::swap(sides[0], sides[1]);
  }
  offspring.pair_class =
      ClassOf(settings_.flow, sides[0].Parent().has_value(), sides[1].Parent().has_value());
  AddConfidence(place, sides);
  return offspring;
}

std::vector<Slot> ExportedStudy::Parents() const {
  std::vector<Slot> parents;
  const SlotRange all = input_.Parents();
  parents.reserve(all.Size());
  for (std::uint32_t slot = all.begin; slot < all.end; ++slot) {
    if (!IsSeparatorName(input_.table.Name(Slot{slot}).Text())) {
      parents.emplace_back(slot);
    }
  }
  return parents;
}

std::string ExportedStudy::GroupName(Slot parent) const {
  const auto group =
      std::find_if(input_.groups.begin(), input_.groups.end(), [&](const CandidateGroup& each) {
        return each.first.Holds(parent) || each.second.Holds(parent);
      });
  return names_.Original(NameKind::kGroup, std::to_string(group - input_.groups.begin() + 1));
}

Sex ExportedStudy::SexOf(Slot individual) const {
  if (IsSexed() && individual.Value() < input_.offspring.begin) {
    return individual.Value() < input_.second_parents.begin ? Sex::kMale : Sex::kFemale;
  }
  const auto sex = sexes_.find(input_.table.Name(individual).Text());
  return sex == sexes_.end() ? Sex::kUnknown : sex->second;
}

std::string ExportedStudy::Code(Slot individual) const {
  return std::string(input_.table.Name(individual).Text());
}

std::string ExportedStudy::Name(Slot individual) const {
  return names_.Original(NameKind::kIndividual, Code(individual));
}

std::string ExportedStudy::LocusName(LocusIndex locus) const {
  return names_.Original(NameKind::kLocus, input_.loci.Name(locus));
}

std::size_t ExportedStudy::TypedLoci(Slot individual) const {
  return input_.table.NumberOfTyped(result_.loci.loci, individual);
}

}  // namespace kaldo
