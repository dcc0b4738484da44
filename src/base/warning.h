// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kaldo {

/// What can be odd about an input that is sound: a run goes on, but a geneticist should know.
///
/// A new one adds its kind here and its sentence in the table below, at the same place.
enum class WarningKind : std::uint8_t {
  kSameNameKey,
  kNameTwice,
  kParentAmongOffspring,
  kSameGenotypes,
  kOffspringNameOfNoParent,
  kSpreadsheetName,
  kNegativeProbability,
  kCoarseRandomNumbers,
  kRandomNumbersRepeat,
  kOptionWithoutEffect,
  kUndefinedInSample,

  kCount,  ///< no kind, but how many there are
};

struct WarningSentence {
  WarningKind kind;
  std::string_view text;
};

/// The sentence of every kind, in their order.
inline constexpr std::array<WarningSentence, static_cast<std::size_t>(WarningKind::kCount)>
    kWarningSentences{{
        {WarningKind::kSameNameKey,
         "Parents with the same first 10 characters of their names are taken for one individual, "
         "so that equally likely pairs with them are not listed."},
        {WarningKind::kNameTwice, "Two records have the same name."},
        {WarningKind::kParentAmongOffspring,
         "An individual stands among the parents and among the offspring."},
        {WarningKind::kSameGenotypes,
         "Two individuals have the same genotypes at all loci in use."},
        {WarningKind::kOffspringNameOfNoParent,
         "The name of an offspring is also a sign for a parent that is not there."},
        {WarningKind::kSpreadsheetName, "A spreadsheet would change a name."},
        {WarningKind::kNegativeProbability,
         "A negative probability has no meaning; the run uses it as it stands."},
        {WarningKind::kCoarseRandomNumbers,
         "Alleles with few digits are drawn coarsely: rare alleles and rare errors are lost. "
         "--random modern draws them all."},
        {WarningKind::kRandomNumbersRepeat,
         "The run takes more random numbers than there are before they repeat. --random modern has "
         "enough."},
        {WarningKind::kOptionWithoutEffect, "An option has no effect."},
        {WarningKind::kUndefinedInSample,
         "Undefined alleles of a sample count for its first allele, whose frequency they raise."},
    }};

/// Something odd as a value: its kind, and where to look.
struct Warning {
  WarningKind kind;

  // Where it is; empty or 0 where it does not apply.
  std::string file = {};
  std::uint32_t line = 0;       ///< counted from 1
  std::uint32_t record = 0;     ///< counted from 1, separators included
  std::string individual = {};  ///< the name at the head of the record

  std::string found = {};  ///< what was found there
  std::size_t more = 0;    ///< others of the kind in that file that are not told one by one
};

/// One line for people: the sentence, the place, what was found, "(and 12 more)".
std::string TextOf(const Warning& warning);

/// The first of each kind in each file, which counts the others.
std::vector<Warning> SummedUp(const std::vector<Warning>& warnings);

/// The lines of the warnings summed up, as results, records and windows tell them.
std::vector<std::string> WarningLines(const std::vector<Warning>& warnings);

}  // namespace kaldo
