// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/random_settings.h"

#include <fmt/format.h>

namespace kaldo {

namespace {

/// A choice of which a record tells only what is not as by default.
template <typename Choice, std::size_t n>
SettingValue<SimulationSettings> Unusual(Choice SimulationSettings::*member,
                                         const std::array<NamedChoice<Choice>, n>& choices) {
  return Member(member, ToldUnlessDefault(SimulationSettings().*member,
                                          ChoiceKind(choices, ProblemKind::kUnknownRandomNumbers)));
}

/// A number above 0 and below 1, or nothing.
ValueKind<std::optional<double>> UntilErrorKind() {
  using Error = std::optional<double>;
  return {
      .parse = [real = RealKind().parse](std::string_view option,
                                         std::string_view text) -> tl::expected<Error, Problem> {
        const auto error = real(option, text);
        if (!error) {
          return tl::unexpected(error.error());
        }
        if (!(*error > 0 && *error < 1)) {
          return NotUnderstood(ProblemKind::kStandardErrorOutOfRange,
                               fmt::format("{}: it is {}", option, *error));
        }
        return Error(*error);
      },
      .text = [](const Error& error) -> std::optional<std::string> {
        return error ? std::optional(fmt::format("{}", *error)) : std::nullopt;
      },
      .record =
          [](const Error& error, const std::string& key, RunRecord& record) {
            if (error) {
              record.settings.emplace_back(key, *error);
            }
          },
      .recorded =
          [](const std::string& key, RecordedSettings& recorded) {
            const Error error = recorded.Optional<double>(key);
            if (error && !(*error > 0 && *error < 1)) {
              recorded.Note(key, "is not between 0 and 1");
            }
            return error;
          },
      .is_number = true};
}

}  // namespace

std::vector<Setting<SimulationSettings>> RandomSettings() {
  using Declared = Setting<SimulationSettings>;
  Declared subset_randoms;
  subset_randoms.key = "subset_randoms";
  subset_randoms.option = "--subset-randoms";
  subset_randoms.metavar = "NAME";
  subset_randoms.group = "Subsets of loci";
  subset_randoms.help =
      "Random numbers of each subset: own | common, so that subsets differ less by chance";
  subset_randoms.value = Unusual(&SimulationSettings::subset_randoms, kSubsetRandoms);
  Declared random;
  random.key = "random";
  random.option = "--random";
  random.metavar = "NAME";
  random.group = "Method";
  random.help = "Random numbers: default | modern, with 64 bits and no coarse draws";
  random.value = Unusual(&SimulationSettings::random, kRandomSources);
  Declared until_error;
  until_error.key = "until_se";
  until_error.option = "--until-se";
  until_error.metavar = "SE";
  until_error.group = "Method";
  until_error.help =
      "End a subset of loci when the standard error of the probability that any allocation is "
      "correct is below SE";
  until_error.value = Member(&SimulationSettings::until_error, UntilErrorKind());
  return {std::move(subset_randoms), std::move(random), std::move(until_error)};
}

}  // namespace kaldo
