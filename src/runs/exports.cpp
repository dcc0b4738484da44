// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/exports.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/number_text.h"

namespace kaldo {

namespace {

std::vector<std::string> NamesOfForms(const ExportForms& wanted) {
  std::vector<std::string> names;
  for (const NamedExportForm& form : kAllExportForms) {
    if (wanted.*form.choice) {
      names.emplace_back(form.name);
    }
  }
  return names;
}

/// Adds the form of that name; false where there is none.
bool AddForm(std::span<const NamedExportForm> forms, std::string_view name, ExportForms& wanted) {
  const auto form = std::find_if(forms.begin(), forms.end(),
                                 [name](const auto& each) { return each.name == name; });
  if (form != forms.end()) {
    wanted.*(form->choice) = true;
  }
  return form != forms.end();
}

tl::expected<std::optional<double>, Problem> ParseProbability(std::string_view option,
                                                              std::string_view text) {
  const auto value = ParseDouble(text);
  if (!value || !(*value >= 0 && *value <= 1)) {
    return NotUnderstood(
        ProblemKind::kNotAShare,
        fmt::format("{}: {} is not a number from 0 to 1, such as 0.95", option, Quoted(text)));
  }
  return value;
}

}  // namespace

ValueKind<ExportForms> ExportFormsKind(std::span<const NamedExportForm> forms) {
  return {.parse = [forms](std::string_view option,
                           std::string_view text) -> tl::expected<ExportForms, Problem> {
            ExportForms wanted;
            for (const std::string& name : CutAtCommas(text)) {
              if (!AddForm(forms, name, wanted)) {
                return NoneOf(NamesIn(forms), option, name, ProblemKind::kUnknownExport);
              }
            }
            return wanted;
          },
          .text = [](const ExportForms& wanted) -> std::optional<std::string> {
            if (!wanted.Any()) {
              return std::nullopt;
            }
            return fmt::format("{}", fmt::join(NamesOfForms(wanted), ","));
          },
          .record =
              [](const ExportForms& wanted, const std::string& key, RunRecord& record) {
                if (wanted.Any()) {
                  record.settings.emplace_back(key, NamesOfForms(wanted));
                }
              },
          .recorded =
              [forms](const std::string& key, RecordedSettings& recorded) {
                ExportForms wanted;
                const auto names = recorded.Optional<std::vector<std::string>>(key);
                for (const std::string& name : names.value_or(std::vector<std::string>())) {
                  if (!AddForm(forms, name, wanted)) {
                    recorded.Note(key, "names an unknown form");
                  }
                }
                return wanted;
              },
          .choices = NamesIn(forms)};
}

ValueKind<std::optional<double>> LeastProbabilityKind() {
  using Probability = std::optional<double>;
  return {.parse = ParseProbability,
          .text = [](const Probability& value) -> std::optional<std::string> {
            return value ? std::optional(fmt::format("{}", *value)) : std::nullopt;
          },
          .record =
              [](const Probability& value, const std::string& key, RunRecord& record) {
                if (value) {
                  record.settings.emplace_back(key, *value);
                }
              },
          .recorded =
              [](const std::string& key, RecordedSettings& recorded) {
                const auto value = recorded.Optional<double>(key);
                if (value && !(*value >= 0 && *value <= 1)) {
                  recorded.Note(key, "is no probability");
                }
                return value;
              },
          .is_number = true};
}

void TellExports(const Exported& exported, RunObserver& observer) {
  for (const Problem& problem : exported.refused) {
    observer.OnMessage(RunMessage::kWarning, SentenceOf(problem) + ' ' + DetailLine(problem));
  }
  for (const std::string& warning : exported.warnings) {
    observer.OnMessage(RunMessage::kWarning, warning);
  }
}

}  // namespace kaldo
