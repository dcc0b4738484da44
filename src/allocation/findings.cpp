// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/findings.h"

#include <algorithm>

#include <fmt/format.h>

#include "allocation/reports/result_line.h"

namespace kaldo {

namespace {

bool BothNamed(const OffspringConfidence& offspring) {
  return offspring.sides[0].verdict == Verdict::kNamed &&
         offspring.sides[1].verdict == Verdict::kNamed;
}

}  // namespace

std::string ProbabilityText(double probability) {
  return probability < 0.0005 ? "<0.001" : fmt::format("{:.3f}", probability);
}

bool KnowsCertainty(const AllocationResult& result) {
  return result.confidence && result.confidence->is_meaningful;
}

const OffspringConfidence* ConfidenceIn(const AllocationResult& result, std::size_t offspring) {
  return KnowsCertainty(result) ? &result.confidence->offspring[offspring] : nullptr;
}

AllocationFindings FindingsOf(const AllocationResult& result) {
  AllocationFindings findings;
  findings.knows_certainty = KnowsCertainty(result);
  findings.certainty_is_lost = result.confidence_is_lost;
  findings.offspring = result.outcomes.size();
  for (std::size_t place = 0; place < findings.offspring; ++place) {
    const OffspringConfidence* const confidence = ConfidenceIn(result, place);
    if (confidence == nullptr) {
      const AllocationOutcome& outcome = result.outcomes[place];
      const bool both = outcome.HasPair() && !outcome.par1_uncollected && !outcome.par2_uncollected;
      findings.both_collected += both ? 1U : 0U;
      continue;
    }
    findings.both_collected += BothNamed(*confidence) ? 1U : 0U;
    if (const auto doubt = DoubtAbout(*confidence)) {
      findings.to_check.push_back({place, *doubt});
    }
  }
  std::stable_sort(findings.to_check.begin(), findings.to_check.end(),
                   [](const auto& a, const auto& b) { return a.doubt < b.doubt; });
  return findings;
}

std::string DoubtText(const AllocationInput& input, const AllocationResult& result, Flow flow,
                      const OffspringToCheck& check) {
  if (check.doubt != Doubt::kContradicted) {
    return std::string(Words(check.doubt));
  }
  const auto& sides = ConfidenceIn(result, check.place)->sides;
  const bool first_is_less = sides[0].p_reported.value_or(1) <= sides[1].p_reported.value_or(1);
  const AllocatedSides reported = SidesOf(flow, result.outcomes[check.place]);
  const auto parent = (first_is_less ? reported.first : reported.second).parent;
  return fmt::format("{} has a probability of {} only",
                     parent ? input.table.Name(*parent).Text() : "UC",
                     ProbabilityText(sides.at(first_is_less ? 0 : 1).p_reported.value_or(0)));
}

std::string FindingsSentence(const AllocationFindings& findings) {
  const std::string of =
      fmt::format("{} of {} offspring", findings.both_collected, findings.offspring);
  const bool one = findings.both_collected == 1;
  if (!findings.knows_certainty) {
    return fmt::format("{} {} allocated to two collected parents; how sure that is {}.", of,
                       one ? "is" : "are",
                       findings.certainty_is_lost ? "was computed, but its report cannot be used"
                                                  : "was not computed");
  }
  const std::size_t checks = findings.to_check.size();
  return fmt::format("{} {} both parents in your files; {}", of, one ? "has" : "have",
                     checks == 0   ? "none needs a look."
                     : checks == 1 ? "1 needs a look."
                                   : fmt::format("{} need a look.", checks));
}

std::string_view ClassLegend(Flow flow) {
  return flow == Flow::kSexed
             ? "CM, CF: to a collected male or female. UCM, UCF: taken as uncollected."
             : "C: to a collected parent. UC: taken as uncollected.";
}

bool HasSeveralPairs(const AllocationOutcome& outcome) {
  return outcome.Pairs().size() > 1 || outcome.more_than_five;
}

bool IsTiedOrOpen(const AllocationResult& result, std::size_t offspring) {
  const OffspringConfidence* const confidence = ConfidenceIn(result, offspring);
  return HasSeveralPairs(result.outcomes[offspring]) ||
         (confidence != nullptr && CertaintyOf(*confidence) == Certainty::kOpen);
}

}  // namespace kaldo
