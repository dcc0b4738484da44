// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/flows/loci_screens.h"

#include "app/base/tr.h"
#include "app/pages/loci_page.h"
#include "app/pages/sequence_page.h"
#include "confidence/locus_order.h"
#include "genotypes/loci_list.h"
#include "method/cumulative_sequence.h"

namespace kaldo {

void LociScreens::Set(const tl::expected<TokenFile, Problem>& loci_file,
                      const std::optional<std::vector<std::string>>& in_use,
                      const std::optional<std::vector<std::int32_t>>& sequence) {
  if (!loci_file || CheckLoci(*loci_file)) {
    return;  // the file screen tells what is wrong with it
  }
  Refill(LociList(*loci_file).Names());
  choice_->SetInUse(in_use);
  choice_->SetSequenceWanted(sequence.has_value());
  if (sequence && !sequence->empty()) {
    sequence_->SetIndices(*sequence);
  }
}

void LociScreens::Refill(const std::vector<std::string>& names) {
  if (!sequence_stays_ || names != choice_->Names()) {
    sequence_->SetNames(names);
  }
  sequence_stays_ = true;
  choice_->SetNames(names);
}

void LociScreens::OrderByInformation(const LociList& names, const GenotypeTable& table,
                                     std::span<const SlotRange> parents) {
  const auto loci = InformationOfLoci(table, parents);
  sequence_->SetIndices(SequenceByInformation(loci));
  sequence_->Tell(TrCore(SequenceSentence(names, loci)));
}

std::optional<Problem> LociScreens::ChoiceFault() const {
  const auto in_use = choice_->InUse();
  if (!in_use || !in_use->empty()) {
    return std::nullopt;
  }
  return Problem{.kind = ProblemKind::kNoLocusInUse};
}

std::optional<Problem> LociScreens::SequenceFault() const {
  return CheckSequence(sequence_->Indices(), choice_->Names().size());
}

}  // namespace kaldo
