// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/method_settings.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "base/number_text.h"

namespace kaldo {

namespace {

using Sequence = std::optional<std::vector<std::int32_t>>;

std::vector<std::string_view> NamesOf(const NamedErrorModel& model) {
  return NamesIn(model.probabilities);
}

tl::expected<std::vector<double>, Problem> ParseProbabilities(std::string_view option,
                                                              std::string_view text) {
  std::vector<double> values;
  for (const std::string& part : CutAtCommas(text)) {
    const auto value = ParseDouble(part);
    if (!value) {
      return NotUnderstood(
          ProblemKind::kNotAProbability,
          fmt::format("{}: {} is not a number such as 0.008{}", option, Quoted(part),
                      part.find(' ') == std::string::npos ? "" : "; write commas between several"));
    }
    values.push_back(*value);
  }
  return values;
}

ErrorModel ModelWith(const NamedErrorModel& named, std::span<const double> values) {
  ErrorModel model;
  model.kind = named.kind;
  for (std::size_t k = 0; k < values.size(); ++k) {
    model.*named.probabilities[k].value = values[k];
  }
  return model;
}

std::vector<double> ProbabilitiesOf(const NamedErrorModel& named, const ErrorModel& model) {
  std::vector<double> values;
  for (const ErrorProbability& probability : named.probabilities) {
    values.push_back(model.*probability.value);
  }
  return values;
}

tl::expected<ErrorModel, Problem> ParseErrorModel(std::string_view option, std::string_view text) {
  const std::size_t equals = text.find('=');
  const std::string_view name = text.substr(0, equals);
  const bool has_values = equals != std::string_view::npos;
  const auto values =
      ParseProbabilities(option, has_values ? text.substr(equals + 1) : std::string_view{});
  if (!values) {
    return tl::unexpected(values.error());
  }
  for (const NamedErrorModel& named : NamedErrorModels()) {
    const bool fits = has_values ? !values->empty() && values->size() == named.probabilities.size()
                                 : named.may_stand_alone;
    if (named.name == name && fits) {
      return ModelWith(named, *values);
    }
  }
  return NotUnderstood(ProblemKind::kNoErrorModel,
                       fmt::format("{}: {} is none of: {} (probabilities with a decimal point)",
                                   option, Quoted(text), ErrorModelForms(", ")));
}

/// As many digits as it takes to read the same probabilities back, not the six of the reports.
std::optional<std::string> ErrorModelText(const ErrorModel& model) {
  for (const NamedErrorModel& named : NamedErrorModels()) {
    if (named.kind != model.kind) {
      continue;
    }
    const auto values = ProbabilitiesOf(named, model);
    const bool plain = named.may_stand_alone && values == ProbabilitiesOf(named, ErrorModel{});
    return plain ? std::string(named.name)
                 : fmt::format("{}={}", named.name, fmt::join(values, ","));
  }
  return "";  // none was chosen, which the command refuses as the window does
}

void RecordErrorModel(const ErrorModel& model, const std::string& key, RunRecord& record) {
  for (const NamedErrorModel& named : NamedErrorModels()) {
    if (named.kind != model.kind) {
      continue;
    }
    record.settings.emplace_back(key, std::string(named.name));
    const auto values = ProbabilitiesOf(named, model);
    if (values.size() == 1) {
      record.settings.emplace_back(named.record_key, values.front());
    } else if (!values.empty()) {
      record.settings.emplace_back(named.record_key, values);
    }
  }
}

std::vector<double> RecordedProbabilities(const NamedErrorModel& named,
                                          RecordedSettings& recorded) {
  constexpr std::array<std::string_view, 6> kWords = {"no", "one", "two", "three", "four", "five"};
  const std::size_t wanted = named.probabilities.size();
  if (wanted == 0) {
    return {};
  }
  if (wanted == 1) {
    return {recorded.Needed<double>(named.record_key)};
  }
  auto values = recorded.Needed<std::vector<double>>(named.record_key);
  if (values.size() != wanted) {
    recorded.Note(named.record_key, fmt::format("needs {} probabilities", kWords.at(wanted)));
    values.clear();
  }
  return values;
}

ErrorModel RecordedErrorModel(const std::string& key, RecordedSettings& recorded) {
  const auto models = NamedErrorModels();
  const NamedErrorModel& named = models[RecordedPlace(key, NamesIn(models), recorded)];
  return ModelWith(named, RecordedProbabilities(named, recorded));
}

}  // namespace

std::string ErrorModelForms(std::string_view separator) {
  std::vector<std::string> forms;
  for (const NamedErrorModel& named : NamedErrorModels()) {
    if (named.may_stand_alone) {
      forms.emplace_back(named.name);
    }
    if (!named.probabilities.empty()) {
      forms.push_back(fmt::format("{}={}", named.name, fmt::join(NamesOf(named), ",")));
    }
  }
  return fmt::format("{}", fmt::join(forms, separator));
}

std::string PlainErrorModels() {
  std::vector<std::string> meanings;
  for (const NamedErrorModel& named : NamedErrorModels()) {
    if (!named.may_stand_alone || named.probabilities.empty()) {
      continue;
    }
    std::vector<std::string_view> values;
    for (const ErrorProbability& probability : named.probabilities) {
      values.push_back(probability.first_shown);
    }
    meanings.push_back(fmt::format("plain {}: {}", named.name, fmt::join(values, ",")));
  }
  return fmt::format("{}", fmt::join(meanings, "; "));
}

ValueKind<OffsetTolerance> ToleranceKind() {
  const ValueKind<std::int32_t> whole = WholeKind();
  return {.parse =
              [whole](std::string_view option, std::string_view text) {
                return whole.parse(option, text).map([](std::int32_t value) {
                  return OffsetTolerance{value};
                });
              },
          .text = [whole](const OffsetTolerance& value) { return whole.text(value.Value()); },
          .record = [whole](const OffsetTolerance& value, const std::string& key,
                            RunRecord& record) { whole.record(value.Value(), key, record); },
          .recorded =
              [whole](const std::string& key, RecordedSettings& recorded) {
                return OffsetTolerance{whole.recorded(key, recorded)};
              },
          .is_number = true};
}

ValueKind<ErrorModel> ErrorModelKind() {
  return {.parse = ParseErrorModel,
          .text = ErrorModelText,
          .record = RecordErrorModel,
          .recorded = RecordedErrorModel,
          .choices = NamesIn(NamedErrorModels())};
}

tl::expected<std::vector<std::int32_t>, Problem> ParseSequence(std::string_view option,
                                                               std::string_view text) {
  std::vector<std::int32_t> indices;
  for (const std::string& part : CutAtCommas(text)) {
    const auto index = ParseInteger(part);
    if (!index) {
      return NotUnderstood(ProblemKind::kSequenceHasZero,
                           fmt::format("{}: {} is not a whole number", option, Quoted(part)));
    }
    indices.push_back(*index);
  }
  return indices;
}

ValueKind<Sequence> SequenceKind() {
  return {.parse = ParseSequence,
          .text = [](const Sequence& sequence) -> std::optional<std::string> {
            return sequence ? std::optional(fmt::format("{}", fmt::join(*sequence, ",")))
                            : std::nullopt;
          },
          .record =
              [](const Sequence& sequence, const std::string& key, RunRecord& record) {
                if (sequence) {
                  record.settings.emplace_back(
                      key, std::vector<std::int64_t>(sequence->begin(), sequence->end()));
                }
              },
          .recorded = [](const std::string& key,
                         RecordedSettings& recorded) { return recorded.WholeNumbers(key); }};
}

}  // namespace kaldo
