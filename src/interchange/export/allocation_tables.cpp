// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/allocation_tables.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "allocation/parent_summary.h"

namespace kaldo {

namespace {

/// A row of a table of the study.
template <typename Row>
struct RowOfStudy {
  const ExportedStudy& study;
  Row row;
};

using OffspringRow = RowOfStudy<ExportedOffspring>;
using OffspringColumn = ExportColumn<OffspringRow>;
using ParentRow = RowOfStudy<ParentSummary>;
using CombinationRow = RowOfStudy<std::size_t>;
using LocusRow = RowOfStudy<LocusQuality>;

Cell Whole(std::size_t number) { return static_cast<std::int64_t>(number); }

Cell NameOf(const ExportedStudy& study, std::optional<Slot> individual) {
  return individual ? Cell(NameCell{study.Name(*individual)}) : Cell();
}

std::string_view LabelOf(SideStatus status) {
  switch (status) {
    case SideStatus::kCollected:
      return "collected";
    case SideStatus::kOffset:
      return "offset";
    case SideStatus::kNoPair:
      break;
  }
  return "no_pair";
}

/// The place of a collected parent in its file, separators included, as the results tell it.
Cell RankOf(const ExportedStudy& study, const ExportedSide& side) {
  if (!side.candidate) {
    return {};
  }
  const auto& input = study.Input();
  const bool is_female = side.candidate->Value() >= input.second_parents.begin;
  return std::int64_t{side.candidate->Value()} -
         (is_female && study.IsSexed() ? input.second_parents.begin : 0) + 1;
}

Cell WorstLocus(const ExportedStudy& study, const ExportedSide& side) {
  return side.worst_locus ? Cell(NameCell{study.LocusName(*side.worst_locus)}) : Cell();
}

/// The same column for either side: `heads` are their names.
template <typename Get>
void AddSides(std::vector<OffspringColumn>& columns, std::array<std::string_view, 2> heads,
              Get get) {
  for (std::size_t k = 0; k < heads.size(); ++k) {
    columns.push_back({heads.at(k), [get, k](const OffspringRow& each) {
                         return get(each.study, each.row.sides.at(k));
                       }});
  }
}

void AddPair(std::vector<OffspringColumn>& columns, bool sexed) {
  using Study = const ExportedStudy&;
  using Side = const ExportedSide&;
  AddSides(columns,
           sexed ? std::array<std::string_view, 2>{"father", "mother"}
                 : std::array<std::string_view, 2>{"parent1", "parent2"},
           [](Study study, Side side) { return NameOf(study, side.Parent()); });
  AddSides(columns, {"status1", "status2"},
           [](Study /*study*/, Side side) -> Cell { return WordCell{LabelOf(side.status)}; });
  AddSides(columns, {"candidate1", "candidate2"},
           [](Study study, Side side) { return NameOf(study, side.candidate); });
  AddSides(columns, {"rank1", "rank2"}, RankOf);
  AddSides(columns, {"errors1", "errors2"}, [](Study /*study*/, Side side) {
    return side.candidate ? Cell(std::int64_t{side.errors}) : Cell();
  });
  AddSides(columns, {"max_offset1", "max_offset2"}, [](Study /*study*/, Side side) {
    return side.max_offset ? Cell(std::int64_t{side.max_offset->Value()}) : Cell();
  });
  AddSides(columns, {"worst_locus1", "worst_locus2"}, WorstLocus);
}

void AddLikelihood(std::vector<OffspringColumn>& columns) {
  columns.push_back({"loci_typed", [](const auto& each) { return Whole(each.row.loci_typed); }});
  columns.push_back(
      {"class", [](const auto& each) -> Cell { return WordCell{each.row.pair_class}; }});
  columns.push_back({"log10_likelihood", [](const auto& each) {
                       const AllocationOutcome& outcome = *each.row.outcome;
                       return outcome.HasPair() ? Cell(std::log10(outcome.best_likelihood))
                                                : Cell();
                     }});
  columns.push_back(
      {"tied_pairs", [](const auto& each) { return Whole(each.row.outcome->Pairs().size()); }});
  columns.push_back({"more_than_five",
                     [](const auto& each) -> Cell { return each.row.outcome->more_than_five; }});
}

/// All columns of the table of allocations.
std::vector<OffspringColumn> OffspringColumns(bool sexed) {
  using Study = const ExportedStudy&;
  using Side = const ExportedSide&;
  std::vector<OffspringColumn> columns;
  columns.push_back(
      {"offspring", [](const auto& each) { return NameOf(each.study, each.row.slot); }});
  AddPair(columns, sexed);
  AddLikelihood(columns);
  AddSides(columns, {"p_parent1", "p_parent2"},
           [](Study /*study*/, Side side) { return CellOf(side.probability); });
  AddSides(columns, {"verdict1", "verdict2"}, [](Study /*study*/, Side side) {
    return side.verdict ? Cell(WordCell{Label(*side.verdict)}) : Cell();
  });
  return columns;
}

Cell SexCell(Sex sex) {
  if (sex == Sex::kUnknown) {
    return {};
  }
  return WordCell{sex == Sex::kMale ? "male" : "female"};
}

std::vector<ExportColumn<ParentRow>> ParentColumns() {
  return {
      {"parent", [](const auto& each) { return NameOf(each.study, each.row.slot); }},
      {"sex", [](const auto& each) { return SexCell(each.study.SexOf(each.row.slot)); }},
      {"group",
       [](const auto& each) -> Cell { return NameCell{each.study.GroupName(each.row.slot)}; }},
      {"rank",
       [](const auto& each) {
         ExportedSide side;
         side.candidate = each.row.slot;
         return RankOf(each.study, side);
       }},
      {"loci_typed", [](const auto& each) { return Whole(each.study.TypedLoci(each.row.slot)); }},
      {"offspring", [](const auto& each) { return Whole(each.row.offspring); }},
      {"mates", [](const auto& each) { return Whole(each.row.mates); }},
      {"with_uncollected", [](const auto& each) { return Whole(each.row.with_uncollected); }},
      {"expected_offspring", [](const auto& each) { return CellOf(each.row.expected_offspring); }},
  };
}

const AllocationCounters& CountersOf(const CombinationRow& each) {
  return each.study.Result().counters[each.row];
}

/// A count of offspring, by the place of its class in PairClassNumbers.
auto ClassCount(std::size_t place) {
  return [place](const CombinationRow& each) -> Cell {
    return PairClassNumbers(each.study.Settings().flow, CountersOf(each)).at(place);
  };
}

std::string NamesOfLoci(const ExportedStudy& study, const std::vector<LocusIndex>& loci) {
  std::vector<std::string> names;
  names.reserve(loci.size());
  for (const LocusIndex locus : loci) {
    names.push_back(study.LocusName(locus));
  }
  return fmt::format("{}", fmt::join(names, ","));
}

std::vector<ExportColumn<CombinationRow>> CombinationColumns(bool sexed) {
  std::vector<ExportColumn<CombinationRow>> columns = {
      {"combination", [](const auto& each) { return Whole(each.row + 1); }},
      {"loci",
       [](const auto& each) { return Whole(each.study.Input().combinations[each.row].size()); }},
      {"entered",
       [](const auto& each) -> Cell {
         return NameCell{each.study.LocusName(each.study.Input().combinations[each.row].back())};
       }},
      {"names",
       [](const auto& each) -> Cell {
         return NameCell{NamesOfLoci(each.study, each.study.Input().combinations[each.row])};
       }},
      {"offspring", [](const auto& each) -> Cell { return CountersOf(each).Offspring(); }},
      {"sides_collected",
       [](const auto& each) -> Cell {
         return each.study.Result().shares[each.row].sides_collected;
       }},
      {"both", ClassCount(0)},
  };
  if (sexed) {
    columns.push_back({"only_father", ClassCount(1)});
    columns.push_back({"only_mother", ClassCount(2)});
    columns.push_back({"none", ClassCount(3)});
  } else {
    columns.push_back({"one", ClassCount(1)});
    columns.push_back({"none", ClassCount(2)});
  }
  return columns;
}

std::vector<ExportColumn<LocusRow>> LocusColumns() {
  const auto variability = [](double LocusVariability::*member) {
    return [member](const LocusRow& each) {
      const auto& found = each.row.variability;
      return found ? Cell((*found).*member) : Cell();
    };
  };
  return {
      {"locus",
       [](const auto& each) -> Cell { return NameCell{each.study.LocusName(each.row.locus)}; }},
      {"alleles", [](const auto& each) { return Whole(each.row.alleles); }},
      {"unit_distance",
       [](const auto& each) {
         return each.row.unit_distance ? Cell(std::int64_t{each.row.unit_distance->Value()})
                                       : Cell();
       }},
      {"in_step", [](const auto& each) -> Cell { return each.row.is_in_step; }},
      {"typed_parents", [](const auto& each) { return Whole(each.row.typed_parents); }},
      {"typed_offspring", [](const auto& each) { return Whole(each.row.typed_offspring); }},
      {"observed_heterozygosity", variability(&LocusVariability::observed_heterozygosity)},
      {"expected_heterozygosity", variability(&LocusVariability::expected_heterozygosity)},
      {"exclusion_pair",
       [](const auto& each) {
         return each.row.exclusions ? Cell(each.row.exclusions->pair) : Cell();
       }},
      {"homozygote_mismatches",
       [](const auto& each) {
         return each.row.mismatches ? Whole(each.row.mismatches->mismatches) : Cell();
       }},
      {"null_allele_frequency", variability(&LocusVariability::null_allele_frequency)},
      {"error_rate", [](const auto& each) { return CellOf(each.row.error_rate); }},
  };
}

}  // namespace

ExportTable AllocationsTable(const ExportedStudy& study) {
  auto columns = OffspringColumns(study.IsSexed());
  auto heads = HeadsOf(columns);
  return {kAllocationsTable, "Allocations", std::move(heads), study.NumberOfOffspring(),
          [&study, columns = std::move(columns)](std::size_t row) {
            return CellsOf(columns, OffspringRow{study, study.Offspring(row)});
          }};
}

ExportTable ParentsTable(const ExportedStudy& study) {
  auto columns = ParentColumns();
  auto heads = HeadsOf(columns);
  auto summaries = SummariesOfParents(study.Settings().flow, study.Input(), study.Result());
  const std::size_t rows = summaries.size();
  return {
      kParentsTable, "Parents", std::move(heads), rows,
      [&study, columns = std::move(columns), summaries = std::move(summaries)](std::size_t row) {
        return CellsOf(columns, ParentRow{study, summaries[row]});
      }};
}

ExportTable SequenceTable(const ExportedStudy& study) {
  auto columns = CombinationColumns(study.IsSexed());
  auto heads = HeadsOf(columns);
  return {kSequenceTable, "Sequence", std::move(heads), study.Result().counters.size(),
          [&study, columns = std::move(columns)](std::size_t row) {
            return CellsOf(columns, CombinationRow{study, row});
          }};
}

ExportTable LociTable(const ExportedStudy& study) {
  auto columns = LocusColumns();
  auto heads = HeadsOf(columns);
  return {"", "Loci", std::move(heads), study.Result().loci_quality.size(),
          [&study, columns = std::move(columns)](std::size_t row) {
            return CellsOf(columns, LocusRow{study, study.Result().loci_quality[row]});
          }};
}

std::size_t NamesGuessedAnew(const ExportedStudy& study) {
  std::size_t changed = 0;
  for (const Slot parent : study.Parents()) {
    changed += IsGuessedAnew(study.Name(parent)) ? 1 : 0;
  }
  const SlotRange offspring = study.Input().offspring;
  for (std::uint32_t slot = offspring.begin; slot < offspring.end; ++slot) {
    changed += IsGuessedAnew(study.Name(Slot{slot})) ? 1 : 0;
  }
  return changed;
}

}  // namespace kaldo
