// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/problem.h"
#include "base/warning.h"

namespace kaldo {

/// How an allele of a parent may be read, in its offspring, as another allele of the locus. "Read"
/// covers all that lies between the two readings: scoring and typing errors, stutter, mutation; for
/// what goes wrong in a laboratory see Pompanon et al. 2005 (doi:10.1038/nrg1707).
enum class ErrorKind {
  kNotChosen = 0,  ///< the user has not decided yet: no run starts
  kNoError = 1,    ///< every allele is read as itself
  kUniform = 2,    ///< with probability epsilon as any other allele of the locus, all alike

  /// One or two unit distances shorter or longer: microsatellites mutate by steps (Ohta & Kimura
  /// 1973, doi:10.1017/S0016672300012994), and stutter shifts readings in the same way.
  kNonUniform = 3,
};

/// The transmission error of a run; all figures are probabilities per allele passed on. BuildMatrix
/// makes the table of a locus of it. The default values are this program's: 2 % of errors, most of
/// them by one step.
struct ErrorModel {
  ErrorKind kind = ErrorKind::kNonUniform;

  /// Uniform: the global error, that an allele is read as any other one; all others together.
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

/// The model of a run whose command names none: any other allele of the locus, one reading in a
/// hundred. It holds no reading for impossible, so that a collected parent whose mate is missing is
/// not lost with it. The windows ask for a model.
inline constexpr ErrorModel kErrorModelUnlessTold{.kind = ErrorKind::kUniform, .epsilon = 0.01};

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

/// The checks of the allocation flows; a model that fails is a Problem with its fixed sentence.
/// Uniform: epsilon at most 0.1; a negative one is accepted although it has no meaning, for only
/// the upper bound is tested, but an infinite one or "not a number" is not. Non Uniform: the five
/// values, added from minus2 to plus2, give exactly 1 in double precision, and focal lies in
/// [0.9, 1]; single values are not tested.
std::optional<Problem> ValidateForAllocation(const ErrorModel& model);

/// Tells a negative probability of a model that the checks accept.
std::optional<Warning> WarnOfNegative(const ErrorModel& model);

/// The description of the model in the heading of a report, of one or two lines; no line end behind
/// it. Empty while no model is chosen.
std::string Describe(const ErrorModel& model);

/// The model in one line for people: "Non Uniform (0.002 0.008 0.98 0.008 0.002)".
std::string ShortDescription(const ErrorModel& model);

}  // namespace kaldo
