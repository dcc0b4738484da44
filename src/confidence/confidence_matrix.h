// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "genotypes/catalogued_loci.h"
#include "method/error_model.h"
#include "method/transmission_matrix.h"

namespace kaldo {

/// The share lambda of readings that may be anything, added to the error model of a run before
/// anything is called probable: 0.01 for models that hold some readings for impossible (No Error,
/// Non Uniform, Uniform with an error of 0), 0 for the others. This program's convention: one
/// misread allele must make a true parent improbable, never impossible, or the posterior would be
/// certain of whatever stranger is left.
double FreeReading(const ErrorModel& model);

/// The transmission matrix of a locus for posterior probabilities,
///
///   M' = (1 - lambda) M + lambda / n,
///
/// with M the matrix of the run and n its alleles. A locus with one allele says nothing: M' = 1.
TransmissionMatrix ConfidenceMatrix(const TransmissionMatrix& matrix, double lambda);

/// One per locus of the names-of-loci file, as the run builds its own.
std::vector<TransmissionMatrix> ConfidenceMatrices(const ErrorModel& model,
                                                   const AlleleCatalogues& catalogues);

/// False where some probability of the model is negative (a negative epsilon is accepted): then
/// nothing here means anything.
bool AreProbabilities(std::span<const TransmissionMatrix> matrices);

}  // namespace kaldo
