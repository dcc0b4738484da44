// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace kaldo {

// What the program accepts. Larger inputs are refused with a sentence, never cut.

/// Individuals in the table of the collected parents, separators included (males and females
/// together), and in the table of the offspring.
inline constexpr std::size_t kMaxIndividuals = 50'000;

/// Loci in a names-of-loci file.
inline constexpr std::size_t kMaxLoci = 50;

/// Bytes of a names-of-loci file: many times what so many names take. A large genotype file chosen
/// by mistake is not taken apart word by word to be told that it has too many loci.
inline constexpr std::size_t kMaxLociBytes = std::size_t{64} * 1024;

/// Distinct allele sizes at one locus, parents and offspring together.
inline constexpr std::size_t kMaxAlleles = 100;

/// Bytes of an individual's name.
inline constexpr std::size_t kMaxNameLength = 15;

/// Bytes of a locus name.
inline constexpr std::size_t kMaxLocusNameLength = 14;

/// Digits of one allele in a genotype field.
inline constexpr std::size_t kMaxAlleleDigits = 4;

/// The largest size that such an allele can have, in base pairs.
inline constexpr std::size_t kLargestAlleleSize = 9'999;

/// Bytes of two names that must agree for them to be the same individual in the test for pairs met
/// twice. Laboratories put running numbers of a replicate behind the tenth character.
inline constexpr std::size_t kNameKeyLength = 10;

}  // namespace kaldo
