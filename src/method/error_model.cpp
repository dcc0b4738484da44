// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/error_model.h"

#include <array>
#include <cmath>

#include <fmt/format.h>

#include "base/number_text.h"

namespace kaldo {

namespace {

constexpr double kLargestEpsilon = 0.1;
constexpr double kSmallestFocal = 0.9;

constexpr std::array<ErrorProbability, 1> kUniformProbabilities{
    {{"EPS", &ErrorModel::epsilon, "0.02"}}};
constexpr std::array<ErrorProbability, 5> kNonUniformProbabilities{
    {{"M2", &ErrorModel::minus2, "0.002"},
     {"M1", &ErrorModel::minus1, "0.008"},
     {"FOCAL", &ErrorModel::focal, "0.980"},
     {"P1", &ErrorModel::plus1, "0.008"},
     {"P2", &ErrorModel::plus2, "0.002"}}};

constexpr std::array<NamedErrorModel, 3> kModels{
    {{ErrorKind::kNoError, "none", {}, "", true},
     {ErrorKind::kUniform, "uniform", kUniformProbabilities, "epsilon", false},
     {ErrorKind::kNonUniform, "nonuniform", kNonUniformProbabilities, "error_values", true}}};

std::string FiveValues(const ErrorModel& model, std::string_view separator) {
  return fmt::format("{1}{0}{2}{0}{3}{0}{4}{0}{5}", separator, FormatDouble(model.minus2),
                     FormatDouble(model.minus1), FormatDouble(model.focal),
                     FormatDouble(model.plus1), FormatDouble(model.plus2));
}

std::optional<Problem> ValidateUniform(const ErrorModel& model) {
  if (model.epsilon <= kLargestEpsilon && std::isfinite(model.epsilon)) {
    return std::nullopt;
  }
  return Problem{.kind = ProblemKind::kEpsilonOutOfRange,
                 .found = fmt::format("epsilon is {}", model.epsilon)};
}

std::optional<Problem> ValidateNonUniform(const ErrorModel& model) {
  const double sum = model.minus2 + model.minus1 + model.focal + model.plus1 + model.plus2;
  if (sum != 1.0) {
    return Problem{.kind = ProblemKind::kProbabilitySum,
                   .found = fmt::format("{} + {} + {} + {} + {} sum to {}", model.minus2,
                                        model.minus1, model.focal, model.plus1, model.plus2, sum)};
  }
  if (!(model.focal >= kSmallestFocal && model.focal <= 1.0)) {
    return Problem{
        .kind = ProblemKind::kErrorSumTooLarge,
        .found = fmt::format("the focal probability is {}, at least 0.9 is wanted", model.focal)};
  }
  return std::nullopt;
}

}  // namespace

std::span<const NamedErrorModel> NamedErrorModels() { return kModels; }

std::optional<Problem> ValidateForAllocation(const ErrorModel& model) {
  switch (model.kind) {
    case ErrorKind::kNoError:
      return std::nullopt;
    case ErrorKind::kUniform:
      return ValidateUniform(model);
    case ErrorKind::kNonUniform:
      return ValidateNonUniform(model);
    case ErrorKind::kNotChosen:
      break;
  }
  return Problem{.kind = ProblemKind::kNoErrorModel};
}

std::optional<Warning> WarnOfNegative(const ErrorModel& model) {
  for (const NamedErrorModel& named : kModels) {
    if (named.kind != model.kind) {
      continue;
    }
    for (const ErrorProbability& probability : named.probabilities) {
      if (model.*probability.value < 0) {
        return Warning{
            .kind = WarningKind::kNegativeProbability,
            .found = fmt::format("{} of the model of error \"{}\" is {}.", probability.name,
                                 named.name, FormatDouble(model.*probability.value))};
      }
    }
  }
  return std::nullopt;
}

std::string Describe(const ErrorModel& model) {
  switch (model.kind) {
    case ErrorKind::kNoError:
      return "No Error\t";
    case ErrorKind::kUniform:
      return "Uniform Error Distribution\nError sum  =  " + FormatDouble(model.epsilon);
    case ErrorKind::kNonUniform:
      return "Non Uniform Error Distribution\nError Description : \t\t" + FiveValues(model, "   ");
    case ErrorKind::kNotChosen:
      break;
  }
  return {};
}

std::string ShortDescription(const ErrorModel& model) {
  switch (model.kind) {
    case ErrorKind::kNoError:
      return "No Error";
    case ErrorKind::kUniform:
      return fmt::format("Uniform (epsilon {})", FormatDouble(model.epsilon));
    case ErrorKind::kNonUniform:
      return fmt::format("Non Uniform ({})", FiveValues(model, " "));
    case ErrorKind::kNotChosen:
      break;
  }
  return "none chosen";
}

}  // namespace kaldo
