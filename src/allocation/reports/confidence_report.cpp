// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/reports/confidence_report.h"

#include <array>

#include <fmt/format.h>

#include "allocation/reports/result_line.h"
#include "runs/tsv_row.h"

namespace kaldo {

namespace {

using SideNames = std::array<std::string_view, 2>;

SideNames NamesOfSides(Flow flow) {
  return flow == Flow::kSexed ? SideNames{"father", "mother"} : SideNames{"parent1", "parent2"};
}

std::string_view NameOf(Explanation explanation, Flow flow) {
  switch (explanation) {
    case Explanation::kBoth:
      return "both";
    case Explanation::kFirst:
      return flow == Flow::kSexed ? "father" : "one";
    case Explanation::kSecond:
      return "mother";
    case Explanation::kNone:
      break;
  }
  return "none";
}

/// Writes the cells of one offspring.
class LineWriter {
 public:
  LineWriter(const AllocationInput& input, const AllocationResult& result, std::size_t offspring)
      : input_(input),
        loci_(result.loci.loci),
        offspring_(input.offspring.begin + static_cast<std::uint32_t>(offspring)),
        confidence_(result.confidence->offspring[offspring]) {}

  std::string Line(Flow flow, const AllocatedSides& reported) {
    row_.Text(input_.table.Name(offspring_).Text()).Whole(TypedLoci(offspring_));
    AddSide(confidence_.sides[0], reported.first.parent);
    AddSide(confidence_.sides[1], reported.second.parent);
    AddAssignment(flow);
    row_.NumberIfAny(confidence_.ln_best_second);
    row_.NumberIfAny(confidence_.ln_pair_unknown[0]).NumberIfAny(confidence_.ln_pair_unknown[1]);
    row_.Whole(confidence_.tied_pairs);
    for (const SideConfidence& side : confidence_.sides) {
      if (side.candidate) {
        row_.Whole(TypedLoci(side.candidate->slot));
      } else {
        row_.Nothing();
      }
    }
    return row_.Line();
  }

 private:
  std::size_t TypedLoci(Slot individual) const {
    return input_.table.NumberOfTyped(loci_, individual);
  }

  void AddName(std::optional<Slot> parent) {
    if (parent) {
      row_.Text(input_.table.Name(*parent).Text());
    } else {
      row_.Nothing();
    }
  }

  void AddParent(const std::optional<ProbableParent>& parent) {
    AddName(parent ? std::optional(parent->slot) : std::nullopt);
    row_.NumberIfAny(parent ? std::optional(parent->probability) : std::nullopt);
  }

  void AddSide(const SideConfidence& side, std::optional<Slot> reported) {
    const bool possible = confidence_.is_possible;
    AddParent(side.candidate);
    row_.Plain(Label(side.verdict));
    AddParent(side.runner_up);
    row_.NumberIfAny(possible ? std::optional(side.p_uncollected) : std::nullopt);
    if (reported) {
      AddName(reported);
    } else {
      row_.Plain("UC");
    }
    row_.NumberIfAny(possible ? side.p_reported : std::nullopt);
  }

  void AddAssignment(Flow flow) {
    if (!confidence_.is_possible) {
      row_.Nothing().Nothing().Nothing().Nothing();
      return;
    }
    row_.Plain(NameOf(confidence_.best_explanation, flow));
    AddName(confidence_.best[0]);
    AddName(confidence_.best[1]);
    row_.Number(confidence_.p_best);
  }

  const AllocationInput& input_;
  const std::vector<LocusIndex>& loci_;
  Slot offspring_;
  const OffspringConfidence& confidence_;
  TsvRow row_;
};

}  // namespace

std::string ConfidenceHead(Flow flow) {
  const SideNames names = NamesOfSides(flow);
  TsvRow row;
  row.Plain("offspring").Plain("loci_typed");
  for (const std::string_view x : names) {
    for (const std::string_view column :
         {"{0}", "p_{0}", "{0}_verdict", "{0}_runner_up", "p_{0}_runner_up", "p_{0}_uncollected",
          "{0}_reported", "p_{0}_reported"}) {
      row.Plain(fmt::format(fmt::runtime(column), x));
    }
  }
  row.Plain("explanation");
  for (const std::string_view column :
       {"best_{0}", "best_{1}", "p_explanation", "ln_best_second", "ln_pair_unknown_{0}",
        "ln_pair_unknown_{1}", "tied_pairs", "{0}_loci_typed", "{1}_loci_typed"}) {
    row.Plain(fmt::format(fmt::runtime(column), names[0], names[1]));
  }
  return row.Line();
}

std::string ConfidenceLine(Flow flow, const AllocationInput& input, const AllocationResult& result,
                           std::size_t offspring) {
  return LineWriter(input, result, offspring).Line(flow, SidesOf(flow, result.outcomes[offspring]));
}

}  // namespace kaldo
