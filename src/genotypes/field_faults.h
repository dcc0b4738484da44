// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "genotypes/record_cursor.h"

namespace kaldo {

/// Which undefined alleles a genotype file may hold.
enum class UndefinedAlleles {
  kNone,       ///< parents: a likelihood needs both alleles of every parent
  kWholeLoci,  ///< offspring and samples: both alleles of a locus or neither
};

/// Digits 0 to 9 only; also true of no text at all.
bool IsAllDigits(std::string_view text);

/// Which alleles of a genotype field are undefined, that is, which halves are zeros only.
struct ZeroHalves {
  bool first = false;
  bool second = false;
};

/// Halves a genotype field of an even number of digits: "150000" has only its second half
/// undefined.
ZeroHalves ZeroHalvesOf(std::string_view field);

/// Whether a field has an even number of digits, as two alleles of the same width have. A word of
/// more than 1,000 characters is no field.
bool IsEvenField(std::string_view field);

/// Whether a genotype has an undefined allele that the file must not have.
bool HoldsForbidden(std::string_view field, UndefinedAlleles allowed);

// What is found in a field with such a fault, in words.
std::string OddFieldText(std::string_view field, std::span<const Token> tokens,
                         RecordLayout layout);
std::string ForbiddenText(std::string_view field);

/// What is wrong with one genotype field by itself, without its place: no digits, another number of
/// them than the fields of the run have, or more than two alleles can have.
std::optional<Problem> FaultOfField(std::string_view field, std::size_t digits_per_field);

/// What is wrong with a name by itself, without its place. No report tells the name of a separator,
/// which may be of any length.
std::optional<Problem> FaultOfRecordName(std::string_view name, bool is_separator);

/// The same for the name of a parent of an allocation: reports would tell one called as they tell
/// no parent as one that was not collected.
std::optional<Problem> FaultOfParentName(std::string_view name);

}  // namespace kaldo
