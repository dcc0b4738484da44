// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace kaldo {

/// How much a locus can tell, from the parents typed at it.
struct LocusVariability {
  double observed_heterozygosity = 0;  ///< the share of heterozygotes

  /// Nei's unbiased gene diversity (1978, doi:10.1093/genetics/89.3.583), with n individuals:
  /// 2n / (2n - 1) (1 - sum p^2).
  double expected_heterozygosity = 0;

  /// Polymorphism information content (Botstein et al. 1980, American Journal of Human Genetics
  /// 32:314-331): 1 - sum p^2 - sum over i < j of 2 p_i^2 p_j^2.
  double pic = 0;

  /// The frequency of an allele that is never seen and would explain why heterozygotes are too few
  /// (Brookfield 1996, doi:10.1111/j.1365-294X.1996.tb00336.x, his first estimator):
  /// (expected - observed) / (1 + expected). Chance makes it negative as often as positive where
  /// there is none.
  double null_allele_frequency = 0;
};

/// Of a locus at which somebody is typed; `copies` are those of each allele.
LocusVariability VariabilityOf(std::span<const double> copies, double heterozygotes);

/// How probably a locus excludes individuals that are no parents of an offspring (Jamieson & Taylor
/// 1997, doi:10.1111/j.1365-2052.1997.00186.x), for random ones of the population of the parents.
/// With s_k = sum p^k.
struct ExclusionProbabilities {
  double one_parent = 0;     ///< one candidate, nothing known about the other parent
  double second_parent = 0;  ///< one candidate, the other parent known
  double pair = 0;           ///< a pair of candidates
};

ExclusionProbabilities ExclusionsOf(std::span<const double> copies);

}  // namespace kaldo
