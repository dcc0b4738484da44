// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "genotypes/genotype_table.h"
#include "genotypes/loci_list.h"
#include "genotypes/token_file.h"

namespace kaldo {

class LociPage;
class SequencePage;

/// The two screens that choose loci, as every flow has them: which loci take part, and where wanted
/// the order in which they enter a cumulative sequence.
class LociScreens {
 public:
  LociScreens(LociPage* choice, SequencePage* sequence) : choice_(choice), sequence_(sequence) {}

  LociPage& Choice() const { return *choice_; }
  SequencePage& Sequence() const { return *sequence_; }

  /// Fills both screens from recorded choices, with the names in the names-of-loci file.
  void Set(const tl::expected<TokenFile, Problem>& loci_file,
           const std::optional<std::vector<std::string>>& in_use,
           const std::optional<std::vector<std::int32_t>>& sequence);

  /// Called when the names of the loci have been read. The sequence starts as the file order, in
  /// every new walk through the flow and for every other set of loci.
  void Refill(const std::vector<std::string>& names);

  /// Fills the sequence by what the loci tell among these parents, and says so.
  void OrderByInformation(const LociList& names, const GenotypeTable& table,
                          std::span<const SlotRange> parents);

  /// Called when the flow is left.
  void Leave() { sequence_stays_ = false; }

  /// What is wrong with the choice, and with the sequence.
  std::optional<Problem> ChoiceFault() const;
  std::optional<Problem> SequenceFault() const;

 private:
  LociPage* choice_;
  SequencePage* sequence_;
  bool sequence_stays_ = false;
};

}  // namespace kaldo
