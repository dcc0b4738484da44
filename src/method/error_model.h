// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/problem.h"

namespace kaldo {

/// How an allele of a parent may be read, in its offspring, as another allele of the locus.
enum class ErrorKind {
  kNotChosen = 0,
  kNoError = 1,     ///< every allele is read as itself
  kUniform = 2,     ///< with probability epsilon as any other allele of the locus, all alike
  kNonUniform = 3,  ///< one or two unit distances shorter or longer, as stutter and slips do
};

/// The transmission error of a run; all figures are probabilities.
struct ErrorModel {
  ErrorKind kind = ErrorKind::kNonUniform;

  /// Uniform: the global error, that an allele is read as any other one.
  double epsilon = 0;

  // Non Uniform: read two or one unit distances shorter, as itself (the target or focal allele),
  // one or two unit distances longer.
  double minus2 = 0.002;
  double minus1 = 0.008;
  double focal = 0.980;
  double plus1 = 0.008;
  double plus2 = 0.002;

  friend bool operator==(const ErrorModel&, const ErrorModel&) = default;
};

/// A probability that a model takes: as the help calls it, and what the error screen shows before
/// anything is typed.
struct ErrorProbability {
  std::string_view name;
  double ErrorModel::*value;
  std::string_view first_shown;
};

/// A model as the command line and the run record call it, with its probabilities in the order in
/// which they are given there.
struct NamedErrorModel {
  ErrorKind kind;
  std::string_view name;
  std::span<const ErrorProbability> probabilities;
  std::string_view record_key;  ///< of the probabilities in a run record
  bool may_stand_alone;         ///< without probabilities it has those of ErrorModel{}
};

/// All models that can be chosen.
std::span<const NamedErrorModel> NamedErrorModels();

/// The checks of the allocation flows. Uniform: epsilon at most 0.1; a negative one is accepted as
/// it stands (some users test the effect of the bound), an infinite one is not. Non Uniform: the
/// five values, added from minus2 to plus2, give exactly 1, and focal lies in [0.9, 1].
std::optional<Problem> ValidateForAllocation(const ErrorModel& model);

/// The description of the model in the heading of a report; no line end behind it.
std::string Describe(const ErrorModel& model);

/// The model in one line for people: "Non Uniform (0.002 0.008 0.98 0.008 0.002)".
std::string ShortDescription(const ErrorModel& model);

}  // namespace kaldo
