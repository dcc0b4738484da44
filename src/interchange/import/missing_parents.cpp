// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/missing_parents.h"

#include <algorithm>
#include <bit>
#include <cstdint>

#include <fmt/format.h>

#include "base/counted_text.h"

namespace kaldo {

namespace {

/// A set of loci, one bit each.
using LocusSet = std::uint64_t;

LocusSet Bit(std::size_t locus) { return LocusSet{1} << locus; }

/// The loci at which each parent is undefined; 0 for offspring.
std::vector<LocusSet> UndefinedLoci(const ForeignStudy& study) {
  std::vector<LocusSet> undefined;
  undefined.reserve(study.individuals.size());
  for (const ForeignIndividual& individual : study.individuals) {
    LocusSet set = 0;
    for (std::size_t k = 0; k < study.loci.size(); ++k) {
      const bool is_undefined =
          individual.role == Role::kParent && individual.genotypes[k].IsUndefined();
      set |= is_undefined ? Bit(k) : 0;
    }
    undefined.push_back(set);
  }
  return undefined;
}

/// What stays when some loci are left out, and then all parents undefined at another.
struct Way {
  LocusSet dropped = 0;
  std::size_t loci = 0;
  std::size_t parents = 0;

  std::size_t Genotypes() const { return loci * parents; }
};

class Ways {
 public:
  explicit Ways(const ForeignStudy& study)
      : undefined_(UndefinedLoci(study)), loci_(study.loci.size()) {
    for (const ForeignIndividual& individual : study.individuals) {
      parents_ += individual.role == Role::kParent ? 1U : 0U;
    }
  }

  const std::vector<LocusSet>& Undefined() const { return undefined_; }
  std::size_t Parents() const { return parents_; }

  std::size_t ParentsAtFault() const {
    return static_cast<std::size_t>(
        std::count_if(undefined_.begin(), undefined_.end(), [](LocusSet set) { return set != 0; }));
  }

  Way Without(LocusSet dropped) const {
    const auto lost = static_cast<std::size_t>(
        std::count_if(undefined_.begin(), undefined_.end(),
                      [dropped](LocusSet set) { return (set & ~dropped) != 0; }));
    return {dropped, loci_ - static_cast<std::size_t>(std::popcount(dropped)), parents_ - lost};
  }

  Way DropIndividuals() const { return Without(0); }

  Way DropLoci() const {
    LocusSet all = 0;
    for (const LocusSet set : undefined_) {
      all |= set;
    }
    return Without(all);
  }

  Way Least() const {
    Way best = Without(0);
    Way last = best;
    while (last.loci > 1) {
      std::optional<Way> next;
      for (std::size_t k = 0; k < loci_; ++k) {
        if ((last.dropped & Bit(k)) == 0) {
          const Way way = Without(last.dropped | Bit(k));
          next = !next || way.Genotypes() > next->Genotypes() ? way : *next;
        }
      }
      last = *next;
      best = last.Genotypes() > best.Genotypes() ? last : best;
    }
    return best;
  }

 private:
  std::vector<LocusSet> undefined_;
  std::size_t loci_;
  std::size_t parents_ = 0;
};

std::string NamesOf(LocusSet set, const std::vector<std::string>& loci) {
  std::vector<std::string> names;
  for (std::size_t k = 0; k < loci.size(); ++k) {
    if ((set & Bit(k)) != 0) {
      names.push_back(loci[k]);
    }
  }
  return fmt::format("{}", fmt::join(names, ", "));
}

std::string CostText(const Way& way, const Ways& ways, const ForeignStudy& study) {
  const std::string loci =
      way.dropped == 0
          ? ""
          : fmt::format("{} left out ({})", Counted(study.loci.size() - way.loci, "locus", "loci"),
                        NamesOf(way.dropped, study.loci));
  const std::size_t lost = ways.Parents() - way.parents;
  const std::string parents = lost == 0 ? "" : Counted(lost, "parent", "parents") + " left out";
  return fmt::format("{}{}{}; {} and {} stay", loci, loci.empty() || parents.empty() ? "" : ", ",
                     parents, Counted(way.parents, "parent", "parents"),
                     Counted(way.loci, "locus", "loci"));
}

std::string Refusal(const Ways& ways, const ForeignStudy& study) {
  return fmt::format(
      "{} of {} undefined at some locus. Choose with --missing-parents what becomes of them:\n"
      "  drop-individuals  {}\n"
      "  drop-loci         {}\n"
      "  least             {}\n"
      "  keep              nothing is left out; runs need --allow-undefined-parents",
      ways.ParentsAtFault(), Counted(ways.Parents(), "parent is", "parents are"),
      CostText(ways.DropIndividuals(), ways, study), CostText(ways.DropLoci(), ways, study),
      CostText(ways.Least(), ways, study));
}

template <typename Value>
void EraseLoci(std::vector<Value>& values, LocusSet dropped) {
  std::size_t kept = 0;
  for (std::size_t k = 0; k < values.size(); ++k) {
    if ((dropped & Bit(k)) == 0) {
      std::swap(values[kept++], values[k]);
    }
  }
  values.resize(kept);
}

void Follow(const Way& way, const Ways& ways, ForeignStudy& study, ImportLog& log) {
  if (way.dropped != 0) {
    log.notes.push_back("Loci left out, since parents are undefined there: " +
                        NamesOf(way.dropped, study.loci));
  }
  std::vector<ForeignIndividual> kept;
  kept.reserve(study.individuals.size());
  for (std::size_t k = 0; k < study.individuals.size(); ++k) {
    ForeignIndividual& individual = study.individuals[k];
    if (const LocusSet left = ways.Undefined()[k] & ~way.dropped; left != 0) {
      log.notes.push_back(fmt::format("{}, line {}: parent {} left out, undefined at {}",
                                      study.files[individual.file].path, individual.line,
                                      individual.name, NamesOf(left, study.loci)));
      continue;
    }
    EraseLoci(individual.genotypes, way.dropped);
    kept.push_back(std::move(individual));
  }
  study.individuals = std::move(kept);
  EraseLoci(study.loci, way.dropped);
}

}  // namespace

void SettleMissingParents(ForeignStudy& study, const ImportChoices& choices, ImportLog& log) {
  const Ways ways(study);
  if (ways.ParentsAtFault() == 0) {
    return;
  }
  Way way;
  switch (choices.missing_parents) {
    case MissingParents::kRefused:
      log.faults.Add({.found = Refusal(ways, study)});
      return;
    case MissingParents::kKeep:
      log.notes.push_back(
          fmt::format("{} undefined loci; runs need --allow-undefined-parents",
                      Counted(ways.ParentsAtFault(), "parent has", "parents have")));
      return;
    case MissingParents::kDropIndividuals:
      way = ways.DropIndividuals();
      break;
    case MissingParents::kDropLoci:
      way = ways.DropLoci();
      break;
    case MissingParents::kLeast:
      way = ways.Least();
      break;
  }
  if (way.Genotypes() == 0) {
    log.faults.Add(
        {.found = "That way nothing of the parents would stay.\n" + Refusal(ways, study)});
    return;
  }
  Follow(way, ways, study, log);
}

}  // namespace kaldo
