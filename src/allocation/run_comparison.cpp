// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/run_comparison.h"

#include <algorithm>
#include <map>
#include <utility>

#include <fmt/format.h>

#include "allocation/allocation_confidence.h"
#include "allocation/findings.h"
#include "base/counted_text.h"

namespace kaldo {

namespace {

std::string_view ClassOf(Flow flow, const ReportedParents& pair) {
  const std::size_t first = pair[0] ? 0 : 1;
  const std::size_t second = pair[1] ? 0 : 1;
  return PairClassNames(flow)[flow == Flow::kSexed ? 2 * first + second : first + second];
}

/// The pairs of a step, the last one included.
std::vector<ReportedParents> PairsOfStep(Flow flow, const AllocationResult& result,
                                         std::size_t step) {
  return step < result.earlier_pairs.size() ? result.earlier_pairs[step] : ReportedBy(flow, result);
}

std::string LociText(const AllocationInput& input, const std::vector<LocusIndex>& loci) {
  std::vector<std::string_view> names;
  names.reserve(loci.size());
  for (const LocusIndex locus : loci) {
    names.push_back(input.loci.Name(locus));
  }
  return fmt::format("{}", fmt::join(names, ", "));
}

/// In words that do not depend on how the same was said: all loci by their names or by default.
std::vector<StatedSetting> SettingsOf(const AllocationSettings& settings,
                                      const AllocationInput& input) {
  const auto yes_or_no = [](bool is_so) { return is_so ? "yes" : "no"; };
  const WantedConfidence& confidence = settings.confidence;
  return {
      {"sexes", settings.flow == Flow::kSexed ? "known" : "not known"},
      {"tolerance", std::to_string(settings.tolerance.Value())},
      {"error model", ShortDescription(settings.error_model)},
      {"loci in use", LociText(input, input.loci.LociInUse())},
      {"undefined parents", yes_or_no(settings.allow_undefined_parents)},
      {"sequence of loci", settings.sequence ? LociText(input, input.combinations.back()) : "no"},
      {"how sure computed", yes_or_no(confidence.computed)},
      {"level of confidence", fmt::format("{}", confidence.level)},
      {"uncollected full sibs of candidates", yes_or_no(confidence.relatives)},
  };
}

bool HaveSamePair(const RunStatement& first, const RunStatement& second, bool sides_count) {
  const auto& [a, b] = first.parents;
  const auto& [c, d] = second.parents;
  return (a == c && b == d) || (!sides_count && a == d && b == c);
}

/// The places of all offspring by their names, in file order.
std::map<std::string_view, std::vector<std::size_t>> PlacesByName(const RunStatements& run) {
  std::map<std::string_view, std::vector<std::size_t>> places;
  for (std::size_t place = 0; place < run.offspring.size(); ++place) {
    places[run.offspring[place].offspring].push_back(place);
  }
  return places;
}

std::vector<std::string> OtherFiles(const RunStatements& first, const RunStatements& second) {
  std::vector<std::string> sentences;
  const auto with_role = [](const RunStatements& run, const std::string& role) {
    const auto found = std::find_if(run.files.begin(), run.files.end(),
                                    [&](const RecordedInput& file) { return file.role == role; });
    return found == run.files.end() ? nullptr : &*found;
  };
  for (const RecordedInput& file : first.files) {
    const RecordedInput* const other = with_role(second, file.role);
    if (other == nullptr) {
      sentences.push_back(fmt::format("{}: {} in this run only", file.role, file.path));
    } else if (other->digest != file.digest) {
      sentences.push_back(fmt::format("{}: {} in this run, {} with other contents in the other one",
                                      file.role, file.path, other->path));
    }
  }
  for (const RecordedInput& file : second.files) {
    if (with_role(first, file.role) == nullptr) {
      sentences.push_back(fmt::format("{}: {} in the other run only", file.role, file.path));
    }
  }
  return sentences;
}

std::vector<std::string> OtherSettings(const RunStatements& first, const RunStatements& second) {
  std::vector<std::string> sentences;
  for (std::size_t k = 0; k < std::min(first.settings.size(), second.settings.size()); ++k) {
    const StatedSetting& here = first.settings[k];
    const StatedSetting& there = second.settings[k];
    if (here.value != there.value) {
      sentences.push_back(fmt::format("{}: {} in this run, {} in the other one", here.name,
                                      here.value, there.value));
    }
  }
  return sentences;
}

}  // namespace

RunStatements StatementsOfStep(const AllocationSettings& settings, const AllocationInput& input,
                               const AllocationResult& result, std::size_t step) {
  RunStatements run;
  run.flow = settings.flow;
  run.files = input.files;
  run.settings = SettingsOf(settings, input);
  const std::vector<ReportedParents> pairs = PairsOfStep(settings.flow, result, step);
  const bool is_last = step + 1 == input.combinations.size();
  run.offspring.resize(pairs.size());
  const auto name = [&](const std::optional<Slot>& parent) {
    return parent ? std::string(input.table.Name(*parent).Text()) : "UC";
  };
  for (std::size_t place = 0; place < run.offspring.size(); ++place) {
    RunStatement& statement = run.offspring[place];
    const Slot slot{input.offspring.begin + static_cast<std::uint32_t>(place)};
    statement.offspring = input.table.Name(slot).Text();
    statement.parents = {name(pairs[place][0]), name(pairs[place][1])};
    statement.the_class = ClassOf(run.flow, pairs[place]);
    const OffspringConfidence* const confidence = is_last ? ConfidenceIn(result, place) : nullptr;
    if (confidence != nullptr) {
      statement.certainty = CertaintyOf(*confidence);
      for (std::size_t k = 0; confidence->is_possible && k < 2; ++k) {
        statement.p_right.at(k) = confidence->sides.at(k).p_reported;
      }
    }
  }
  return run;
}

RunStatements StatementsOf(const AllocationSettings& settings, const AllocationInput& input,
                           const AllocationResult& result) {
  return StatementsOfStep(settings, input, result, input.combinations.size() - 1);
}

RunComparison Compare(const RunStatements& first, const RunStatements& second) {
  RunComparison comparison;
  comparison.other_files = OtherFiles(first, second);
  comparison.other_settings = OtherSettings(first, second);
  const bool sides_count = first.flow == Flow::kSexed && second.flow == Flow::kSexed;
  const auto places = PlacesByName(second);
  std::map<std::string_view, std::size_t> met;
  std::vector<bool> is_matched(second.offspring.size());
  comparison.offspring.reserve(first.offspring.size());
  for (std::size_t place = 0; place < first.offspring.size(); ++place) {
    const RunStatement& statement = first.offspring[place];
    ComparedOffspring compared{place, std::nullopt, false};
    const std::size_t earlier = met[statement.offspring]++;
    if (const auto alike = places.find(statement.offspring);
        alike != places.end() && earlier < alike->second.size()) {
      compared.second = alike->second[earlier];
      is_matched[*compared.second] = true;
      compared.is_changed =
          !HaveSamePair(statement, second.offspring[*compared.second], sides_count);
    }
    ++(compared.second ? comparison.in_both : comparison.only_first);
    comparison.changed += compared.is_changed ? 1U : 0U;
    comparison.offspring.push_back(compared);
  }
  for (std::size_t place = 0; place < is_matched.size(); ++place) {
    if (!is_matched[place]) {
      comparison.offspring.push_back({std::nullopt, place, false});
      ++comparison.only_second;
    }
  }
  return comparison;
}

std::string ComparisonSentence(const RunComparison& comparison) {
  std::string sentence = fmt::format("{} of {} of both runs {} another pair", comparison.changed,
                                     Counted(comparison.in_both, "offspring", "offspring"),
                                     comparison.changed == 1 ? "has" : "have");
  if (comparison.only_first > 0 || comparison.only_second > 0) {
    sentence += fmt::format("; {} in this run only, {} in the other one only",
                            comparison.only_first, comparison.only_second);
  }
  return sentence + ".";
}

}  // namespace kaldo
