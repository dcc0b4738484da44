// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/error_model_record.h"

#include <algorithm>
#include <array>

namespace kaldo {

namespace {

struct NamedKind {
  ErrorKind kind;
  std::string_view name;
};

constexpr std::array<NamedKind, 3> kKinds = {{{ErrorKind::kNoError, "none"},
                                              {ErrorKind::kUniform, "uniform"},
                                              {ErrorKind::kNonUniform, "nonuniform"}}};

}  // namespace

void RecordErrorModel(const ErrorModel& model, RunRecord& record) {
  for (const auto& [kind, name] : kKinds) {
    if (kind == model.kind) {
      record.settings.emplace_back("error", std::string(name));
    }
  }
  if (model.kind == ErrorKind::kUniform) {
    record.settings.emplace_back("epsilon", model.epsilon);
  }
  if (model.kind == ErrorKind::kNonUniform) {
    record.settings.emplace_back(
        "error_values",
        std::vector<double>{model.minus2, model.minus1, model.focal, model.plus1, model.plus2});
  }
}

ErrorModel RecordedErrorModel(RecordedSettings& recorded) {
  ErrorModel model;
  model.kind = ErrorKind::kNotChosen;
  const auto name = recorded.Needed<std::string>("error");
  for (const auto& [kind, known] : kKinds) {
    model.kind = known == name ? kind : model.kind;
  }
  if (model.kind == ErrorKind::kNotChosen) {
    recorded.Note("error", "is none of none, uniform, nonuniform");
  }
  if (model.kind == ErrorKind::kUniform) {
    model.epsilon = recorded.Needed<double>("epsilon");
  }
  if (model.kind == ErrorKind::kNonUniform) {
    const auto values = recorded.Needed<std::vector<double>>("error_values");
    if (values.size() != 5) {
      recorded.Note("error_values", "needs five probabilities");
      return model;
    }
    model.minus2 = values[0];
    model.minus1 = values[1];
    model.focal = values[2];
    model.plus1 = values[3];
    model.plus2 = values[4];
  }
  return model;
}

}  // namespace kaldo
