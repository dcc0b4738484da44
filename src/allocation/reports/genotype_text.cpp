// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/reports/genotype_text.h"

#include <algorithm>

namespace kaldo {

namespace {

constexpr std::size_t kNameFieldWidth = 12;

}  // namespace

std::string PaddedAllele(AlleleSize allele, std::size_t digits) {
  const std::string number = std::to_string(allele.Value());
  return std::string(digits - std::min(digits, number.size()), '0') + number;
}

std::string NameField(std::string_view text) {
  std::string field(text);
  field.resize(std::max(field.size(), kNameFieldWidth), ' ');
  return field;
}

}  // namespace kaldo
