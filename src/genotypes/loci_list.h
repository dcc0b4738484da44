// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "genotypes/token_file.h"
#include "genotypes/units.h"

namespace kaldo {

/// The locus names of a study in the order in which their genotype fields follow each individual's
/// name, and which of them take part in a run.
class LociList {
 public:
  LociList() = default;

  /// Takes every word of a names-of-loci file as a locus; all are in use at first.
  explicit LociList(const TokenFile& file);

  std::size_t Count() const { return names_.size(); }
  const std::string& Name(LocusIndex locus) const { return names_[locus.Value()]; }
  const std::vector<std::string>& Names() const { return names_; }
  bool InUse(LocusIndex locus) const { return in_use_[locus.Value()]; }

  /// The loci in use, in file order.
  std::vector<LocusIndex> LociInUse() const;

  /// Leaves only the named loci in use. An unknown name, or none at all, is a Problem and changes
  /// nothing.
  std::optional<Problem> Use(const std::vector<std::string>& names);

 private:
  std::vector<std::string> names_;
  std::vector<bool> in_use_;
};

/// What no names-of-loci file may have: no name, more than 50, a name over 14 bytes or that cannot
/// be shown, a name twice.
std::optional<Problem> CheckLoci(const TokenFile& file);

}  // namespace kaldo
