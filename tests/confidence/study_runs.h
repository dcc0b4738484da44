// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "confidence/confidence_run.h"
#include "tests/support/random_study.h"

namespace kaldo::test {

inline ErrorModel Uniform(double epsilon) {
  ErrorModel model;
  model.kind = ErrorKind::kUniform;
  model.epsilon = epsilon;
  return model;
}

inline ErrorModel NoError() {
  ErrorModel model;
  model.kind = ErrorKind::kNoError;
  return model;
}

inline ConfidenceInput InputOf(const RandomStudy& study) {
  return {study.flow,
          study.table,
          {study.parents, static_cast<std::uint32_t>(study.table.NumberOfIndividuals())},
          study.groups,
          study.catalogues,
          study.loci,
          {}};
}

inline ConfidenceResult Compute(const ErrorModel& model, const ConfidenceInput& input,
                                unsigned threads = 1, bool relatives = false) {
  LocalThreads workforce;
  RunObserver observer;
  return ComputeConfidence({model, kDefaultConfidenceLevel, threads, relatives}, input, workforce,
                           observer, [] { return RunRecord(); });
}

}  // namespace kaldo::test
