// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/offspring_table.h"

#include <array>

#include <fmt/format.h>

#include "allocation/findings.h"
#include "confidence/certainty.h"
#include "method/locus_fit.h"

namespace kaldo {

namespace {

/// What a row is made of.
struct Row {
  const ExportedStudy& study;
  std::size_t place;
  ExportedOffspring offspring;
  const OffspringConfidence* confidence;  ///< null without posteriors
};

enum class Kind { kText, kNumber };

struct Column {
  std::string key;
  std::string head;
  std::string_view tip;
  Kind kind;
  bool is_first;         ///< for a first glance
  bool needs_posterior;  ///< says nothing without
  std::function<Cell(const Row& row)> cell;
};

using Columns = std::vector<Column>;

Cell NameOf(const Row& row, std::optional<Slot> individual) {
  return individual ? Cell(NameCell{row.study.Name(*individual)}) : Cell();
}

Cell NameOf(const Row& row, const std::optional<ProbableParent>& parent) {
  return NameOf(row, parent ? std::optional(parent->slot) : std::nullopt);
}

Cell ProbabilityOf(const std::optional<ProbableParent>& parent) {
  return CellOf(parent ? std::optional(parent->probability) : std::nullopt);
}

Cell CertaintyCell(const Row& row) {
  return row.confidence == nullptr ? Cell() : Cell(WordCell{Word(CertaintyOf(*row.confidence))});
}

Cell DoubtCell(const Row& row) {
  const auto doubt = row.confidence == nullptr ? std::nullopt : DoubtAbout(*row.confidence);
  return doubt ? Cell(WordCell{Words(*doubt)}) : Cell();
}

/// The name of a side of the results report.
Cell AllocatedCell(const Row& row, const ExportedSide& side) {
  return side.Parent() ? NameOf(row, side.Parent()) : Cell(WordCell{"UC"});
}

void AddSide(Columns& columns, std::size_t k, const std::string& name) {
  columns.push_back({fmt::format("parent{}", k + 1), name,
                     "The collected parent, or UC: the true one is taken not to be among the "
                     "collected.",
                     Kind::kText, true, false, [k](const Row& row) {
                       return AllocatedCell(row, row.offspring.sides.at(k));
                     }});
  columns.push_back({fmt::format("p{}", k + 1), "p right",
                     "The probability that this is right: that it is the parent, or for UC that "
                     "the parent was not collected.",
                     Kind::kNumber, true, true, [k](const Row& row) {
                       return CellOf(row.offspring.sides.at(k).probability);
                     }});
}

/// A cell of what the posteriors tell of a side; nothing where there is nothing to tell.
template <typename Get>
auto OfSide(std::size_t k, Get get) {
  return [k, get](const Row& row) {
    return row.confidence == nullptr || !row.confidence->is_possible
               ? Cell()
               : get(row, row.confidence->sides.at(k));
  };
}

void AddPosteriors(Columns& columns, std::size_t k, const std::string& name) {
  const auto add = [&](std::string_view key, std::string_view head, std::string_view tip, Kind kind,
                       auto cell) {
    columns.push_back({fmt::format("{}{}", key, k + 1), fmt::format("{}: {}", name, head), tip,
                       kind, false, true, OfSide(k, cell)});
  };
  using Side = SideConfidence;
  add("verdict", "verdict",
      "Named or uncollected where that is as probable as the level of confidence asks for, else "
      "open.",
      Kind::kText,
      [](const Row& /*row*/, const Side& side) -> Cell { return WordCell{Label(side.verdict)}; });
  add("candidate", "most probable", "The most probable candidate, whatever the verdict.",
      Kind::kText, [](const Row& row, const Side& side) { return NameOf(row, side.candidate); });
  add("p_candidate", "p", "The probability that the most probable candidate is a parent.",
      Kind::kNumber,
      [](const Row& /*row*/, const Side& side) { return ProbabilityOf(side.candidate); });
  add("runner_up", "runner-up", "The next most probable candidate.", Kind::kText,
      [](const Row& row, const Side& side) { return NameOf(row, side.runner_up); });
  add("p_runner_up", "p runner-up", "The probability that the next candidate is a parent.",
      Kind::kNumber,
      [](const Row& /*row*/, const Side& side) { return ProbabilityOf(side.runner_up); });
  add("p_uncollected", "p not collected",
      "The probability that this parent was not collected; where sexes are not known: 1 that "
      "neither was, 2 that at most one was.",
      Kind::kNumber,
      [](const Row& /*row*/, const Side& side) -> Cell { return side.p_uncollected; });
}

void AddErrors(Columns& columns, std::size_t k, const std::string& name) {
  columns.push_back({fmt::format("errors{}", k + 1), name + ": errors",
                     "Loci at which an error had to be assumed for the parent of the best pair.",
                     Kind::kNumber, false, false, [k](const Row& row) {
                       const ExportedSide& side = row.offspring.sides.at(k);
                       return side.candidate ? Cell(std::int64_t{side.errors}) : Cell();
                     }});
  columns.push_back({fmt::format("worst{}", k + 1), name + ": worst locus",
                     "The first locus with the greatest offset of the parent of the best pair.",
                     Kind::kText, false, false, [k](const Row& row) {
                       const auto& locus = row.offspring.sides.at(k).worst_locus;
                       return locus ? Cell(NameCell{row.study.LocusName(*locus)}) : Cell();
                     }});
}

void AddHead(Columns& columns) {
  columns.push_back({"place", "No.", "Place in the offspring file.", Kind::kNumber, true, false,
                     [](const Row& row) -> Cell { return std::int64_t(row.place) + 1; }});
  columns.push_back({"offspring", "Offspring", "Name of the offspring.", Kind::kText, true, false,
                     [](const Row& row) { return NameOf(row, row.offspring.slot); }});
  columns.push_back({"certainty", "Certainty", "How far both parents can be relied on together.",
                     Kind::kText, true, true, CertaintyCell});
}

void AddTail(Columns& columns) {
  columns.push_back({"class", "Class", "How many parents, or which, are collected.", Kind::kText,
                     true, false,
                     [](const Row& row) -> Cell { return WordCell{row.offspring.pair_class}; }});
  columns.push_back({"check", "To check", "Why the offspring is to be looked at.", Kind::kText,
                     true, true, DoubtCell});
}

void AddPairs(Columns& columns) {
  columns.push_back({"pairs", "Pairs",
                     "Pairs that explain the offspring equally well; the first decided. 0: no pair "
                     "is possible; 5+: more than five were met.",
                     Kind::kText, false, false, [](const Row& row) -> Cell {
                       const AllocationOutcome& outcome = *row.offspring.outcome;
                       return outcome.more_than_five ? Cell(WordCell{"5+"})
                                                     : Cell(std::int64_t(outcome.Pairs().size()));
                     }});
  columns.push_back(
      {"likelihood", "Likelihood", "Of the best pair. It ranks pairs; it is no certainty.",
       Kind::kNumber, false, false,
       [](const Row& row) -> Cell { return row.offspring.outcome->best_likelihood; }});
  columns.push_back({"typed", "Loci typed", "Loci of the run that are typed in the offspring.",
                     Kind::kNumber, false, false, [](const Row& row) -> Cell {
                       return std::int64_t(row.offspring.loci_typed);
                     }});
}

Columns ColumnsOf(const ShownAllocation& allocation) {
  const bool sexed = allocation.settings.flow == Flow::kSexed;
  const std::array<std::string, 2> names = sexed
                                               ? std::array<std::string, 2>{"Male", "Female"}
                                               : std::array<std::string, 2>{"Parent 1", "Parent 2"};
  Columns columns;
  AddHead(columns);
  AddSide(columns, 0, names[0]);
  AddSide(columns, 1, names[1]);
  AddTail(columns);
  for (std::size_t k = 0; k < names.size(); ++k) {
    AddPosteriors(columns, k, names.at(k));
  }
  for (std::size_t k = 0; k < names.size(); ++k) {
    AddErrors(columns, k, names.at(k));
  }
  AddPairs(columns);
  if (!KnowsCertainty(allocation.run.result)) {
    std::erase_if(columns, [](const Column& column) { return column.needs_posterior; });
  }
  return columns;
}

std::string GenotypeText(const LocusGenotype& genotype) {
  const auto allele = [](AlleleSize size) {
    return size == kUndefinedAllele ? std::string("?") : std::to_string(size.Value());
  };
  return genotype.IsMissing() ? "not typed"
                              : allele(genotype.allele1) + '/' + allele(genotype.allele2);
}

std::string_view WordOf(LocusFit fit) {
  switch (fit) {
    case LocusFit::kUnsaid:
      return "unsaid";
    case LocusFit::kExact:
      return "exact";
    case LocusFit::kUnmeasured:
      return "unmeasured";
    case LocusFit::kTolerated:
      return "tolerated";
    case LocusFit::kExcluded:
      break;
  }
  return "excluded";
}

Json ParentAtLocus(const LocusComparison& locus, bool is_first, OffsetTolerance tolerance) {
  const UnitDistances offset = is_first ? locus.offset_par1 : locus.offset_par2;
  return {{"genotype", GenotypeText(is_first ? locus.par1 : locus.par2)},
          {"offset", offset.Value()},
          {"fit", std::string(WordOf(FitOf(locus, offset, tolerance)))}};
}

Json LociJson(const ShownAllocation& allocation, Slot offspring, std::optional<ParentPair> pair) {
  const LociOfRun& loci = allocation.run.result.loci;
  const GenotypeTable& table = allocation.run.input.table;
  const auto compared =
      pair ? CompareWithPair(table, offspring, *pair, loci) : std::vector<LocusComparison>();
  const ExportedStudy study = allocation.Study();
  Json rows = Json::array();
  for (std::size_t k = 0; k < loci.loci.size(); ++k) {
    Json row = {{"locus", Escaped(study.LocusName(loci.loci[k]))},
                {"unit", loci.unit_distances[k].Value()},
                {"offspring", GenotypeText(table.Genotype(loci.loci[k], offspring))},
                {"parents", Json::array()}};
    if (pair) {
      for (const bool is_first : {true, false}) {
        row["parents"].push_back(
            ParentAtLocus(compared[k], is_first, allocation.settings.tolerance));
      }
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace

Json OffspringTableJson(const ShownAllocation& allocation) {
  const ExportedStudy study = allocation.Study();
  const Columns columns = ColumnsOf(allocation);
  Json heads = Json::array();
  for (const Column& column : columns) {
    heads.push_back({{"key", column.key},
                     {"head", column.head},
                     {"tip", std::string(column.tip)},
                     {"numeric", column.kind == Kind::kNumber},
                     {"first", column.is_first}});
  }
  Json rows = Json::array();
  for (std::size_t place = 0; place < study.NumberOfOffspring(); ++place) {
    const Row row{study, place, study.Offspring(place), ConfidenceIn(allocation.run.result, place)};
    Json cells = Json::array();
    for (const Column& column : columns) {
      cells.push_back(CellJson(column.cell(row)));
    }
    rows.push_back(std::move(cells));
  }
  return {{"columns", std::move(heads)}, {"rows", std::move(rows)}};
}

Json LocusByLocusJson(const ShownAllocation& allocation, std::size_t place, std::size_t pair) {
  const AllocationRun& run = allocation.run;
  if (place >= run.result.outcomes.size()) {
    return {};
  }
  const ExportedStudy study = allocation.Study();
  const Slot offspring{run.input.offspring.begin + static_cast<std::uint32_t>(place)};
  const auto pairs = run.result.outcomes[place].Pairs();
  Json names = Json::array();
  for (const ParentPair& each : pairs) {
    names.push_back({Escaped(study.Name(each.parent1)), Escaped(study.Name(each.parent2))});
  }
  const auto shown = pair < pairs.size() ? std::optional(pairs[pair]) : std::nullopt;
  return {{"offspring", Escaped(study.Name(offspring))},
          {"tolerance", allocation.settings.tolerance.Value()},
          {"pairs", std::move(names)},
          {"pair", pair},
          {"loci", LociJson(allocation, offspring, shown)}};
}

}  // namespace kaldo
