// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/warning.h"
#include "genotypes/genotype_table.h"
#include "genotypes/loci_list.h"
#include "genotypes/record_cursor.h"

namespace kaldo {

/// Looks for what is odd about the names and genotypes of loaded individuals. Each search takes the
/// slots to be searched, and tells every case.
class RecordWarnings {
 public:
  /// The table and the loci must live as long.
  RecordWarnings(const GenotypeTable& table, const LociList& loci) : table_(table), loci_(loci) {}

  /// Tells where the next individuals of the table stand; all files, in the order of the table,
  /// before any search.
  void AddFile(const TokenFile& file, RecordLayout layout);

  /// Different names that the method takes for one (see IndividualName::SameKeyAs).
  void SearchSameKeys(SlotRange parents);

  void SearchNamesTwice(SlotRange individuals);

  /// Individuals of different names, typed at all loci in use, with the same two alleles at each.
  void SearchSameGenotypes(SlotRange individuals);

  /// Offspring of the name of a parent.
  void SearchParentsAmong(SlotRange offspring, SlotRange parents);

  /// Offspring named as reports write no parent.
  void SearchSignsOfNoParent(SlotRange offspring);

  /// Names that a spreadsheet takes for dates, numbers or formulas.
  void SearchSpreadsheetNames(SlotRange individuals);

  std::vector<Warning> Take() { return std::move(warnings_); }

 private:
  struct Place {
    std::string file;
    std::uint32_t line = 0;
    std::uint32_t record = 0;
    bool is_separator = false;
  };

  std::string_view NameAt(std::uint32_t slot) const { return table_.Name(Slot{slot}).Text(); }
  std::vector<std::uint32_t> Individuals(SlotRange range) const;
  void Add(WarningKind kind, std::uint32_t slot, std::string found);

  /// Warns of every individual whose neighbour in the order is the same but not of an equal name.
  template <typename Less, typename Clash>
  void SearchRuns(WarningKind kind, std::vector<std::uint32_t> slots, Less less, Clash clash);

  std::string ElsewhereText(std::uint32_t other, std::uint32_t slot) const;

  const GenotypeTable& table_;
  const LociList& loci_;
  std::vector<Place> places_;  ///< by slot
  std::vector<Warning> warnings_;
};

}  // namespace kaldo
