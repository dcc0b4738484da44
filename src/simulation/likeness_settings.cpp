// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/likeness_settings.h"

#include <functional>

#include <fmt/format.h>

#include "method/method_settings.h"

namespace kaldo {

namespace {

/// Several numbers between commas, each as `one` reads it.
template <typename Number>
ValueKind<std::vector<Number>> NumbersKind(const ValueKind<Number>& one) {
  using Numbers = std::vector<Number>;
  const auto text = [one](const Numbers& numbers) -> std::optional<std::string> {
    std::vector<std::string> parts;
    parts.reserve(numbers.size());
    for (const Number& number : numbers) {
      parts.push_back(*one.text(number));
    }
    return parts.empty() ? std::nullopt
                         : std::optional<std::string>(fmt::format("{}", fmt::join(parts, ",")));
  };
  const auto parse = [one](std::string_view option,
                           std::string_view typed) -> tl::expected<Numbers, Problem> {
    Numbers numbers;
    for (const std::string& part : CutAtCommas(typed)) {
      auto number = one.parse(option, part);
      if (!number) {
        return tl::unexpected(std::move(number.error()));
      }
      numbers.push_back(*number);
    }
    return numbers;
  };
  return {.parse = parse,
          .text = text,
          .record =
              [text](const Numbers& numbers, const std::string& key, RunRecord& record) {
                if (const auto told = text(numbers)) {
                  record.settings.emplace_back(key, *told);
                }
              },
          .recorded =
              [parse](const std::string& key, RecordedSettings& recorded) {
                auto numbers =
                    parse(key, recorded.Optional<std::string>(key).value_or(std::string()));
                if (!numbers) {
                  recorded.Note(key, "holds what is no number");
                }
                return numbers.value_or(Numbers{});
              }};
}

using AllocateWith = std::optional<ErrorModel>;

constexpr std::string_view kModelOfRun = "run";

/// A model, or that of the run.
ValueKind<AllocateWith> AllocateWithKind() {
  const ValueKind<ErrorModel> model = ErrorModelKind();
  const auto text = [model](const AllocateWith& value) {
    return value ? model.text(*value) : std::optional(std::string(kModelOfRun));
  };
  const auto parse = [model](std::string_view option,
                             std::string_view typed) -> tl::expected<AllocateWith, Problem> {
    if (typed == kModelOfRun) {
      return std::nullopt;
    }
    return model.parse(option, typed);
  };
  std::vector<std::string_view> choices = {kModelOfRun};
  choices.insert(choices.end(), model.choices.begin(), model.choices.end());
  return {.parse = parse,
          .text = text,
          .record = [text](const AllocateWith& value, const std::string& key,
                           RunRecord& record) { record.settings.emplace_back(key, *text(value)); },
          .recorded =
              [parse](const std::string& key, RecordedSettings& recorded) {
                const auto value = parse(key, recorded.Needed<std::string>(key));
                if (!value) {
                  recorded.Note(key, "is no model of error");
                }
                return value.value_or(std::nullopt);
              },
          .choices = choices};
}

/// A member of which a record tells only what is not as by default.
template <typename Value>
SettingValue<SimulationSettings> Unusual(Value SimulationSettings::*member,
                                         const ValueKind<Value>& kind) {
  return Member(member, ToldUnlessDefault(SimulationSettings().*member, kind));
}

bool IsNonSexed(const SimulationSettings& settings) { return settings.flow == Flow::kNonSexed; }

}  // namespace

std::vector<Setting<SimulationSettings>> LikenessSettings() {
  const std::string group = "Method";
  // GCC 12 has to meet this type before the list.
  const std::function<bool(const SimulationSettings&)> is_non_sexed = IsNonSexed;
  return {
      {.key = "allocate_with",
       .option = "--allocate-with",
       .metavar = "MODEL",
       .group = group,
       .help = "Non-sexed: model of error of the allocation; run: that of --error, as kaldo "
               "allocate would",
       .value = Unusual(&SimulationSettings::allocate_with, AllocateWithKind()),
       .applies = is_non_sexed},
      {.key = "undefined",
       .option = "--undefined",
       .metavar = "RATE",
       .group = group,
       .help = "Share of loci at which pseudo-offspring are undefined, from 0 to below 1",
       .value = Unusual(&SimulationSettings::undefined, RealKind())},
      {.key = "undefined_like",
       .option = "--undefined-like",
       .metavar = "FILE",
       .group = group,
       .help = "Pseudo-offspring are undefined as often, locus by locus, as these offspring",
       .value = Member(&SimulationSettings::undefined_like, OptionalTextKind()),
       .may_be_left_out = true},
      {.key = "undefined_in_sample",
       .option = "--undefined-in-sample",
       .metavar = "NAME",
       .group = group,
       .help = "Undefined alleles of samples: count (for the first allele) | ignore",
       .value = Unusual(&SimulationSettings::undefined_in_sample,
                        ChoiceKind(kUndefinedInSample, ProblemKind::kUnknownCountOfUndefined))},
      {.key = "scan_tolerance",
       .option = "--scan-tolerance",
       .metavar = "N1,N2,...",
       .group = group,
       .help = "Simulate with each of these tolerances, too, and compare them in a table",
       .value = Member(&SimulationSettings::scan_tolerance, NumbersKind(WholeKind()))},
      {.key = "scan_uncollected",
       .option = "--scan-uncollected",
       .metavar = "U1,U2,...",
       .group = group,
       .help = "The same with each of these numbers of uncollected parents (sexed: of each sex)",
       .value = Member(&SimulationSettings::scan_uncollected, NumbersKind(RealKind()))},
  };
}

}  // namespace kaldo
