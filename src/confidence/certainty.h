// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "confidence/posterior.h"

namespace kaldo {

/// How far a parent of an offspring can be relied on, in one word. The classes are this program's
/// convention.
enum class Certainty {
  kSure,         ///< named with kSureLevel or more
  kLikely,       ///< named with less
  kOpen,         ///< neither named nor uncollected: several explanations are about as probable
  kUncollected,  ///< not among the collected parents
};

inline constexpr std::array<Certainty, 4> kAllCertainties = {
    Certainty::kSure, Certainty::kLikely, Certainty::kOpen, Certainty::kUncollected};

/// "sure", "likely", "open", "not collected".
std::string_view Word(Certainty certainty);

/// A sign that is told from the others without colours.
std::string_view Sign(Certainty certainty);

/// Of one side of an offspring.
Certainty CertaintyOf(const SideConfidence& side);

/// Of both sides together: open where one is open, else likely where one is no more than likely,
/// else not collected where one is not collected. So "sure" says that both parents are named, and
/// each with kSureLevel or more.
Certainty CertaintyOf(const OffspringConfidence& offspring);

/// What an offspring of the class is, in a sentence for a legend.
std::string_view MeaningForOffspring(Certainty certainty);

/// Why a geneticist should look at an offspring before using what the results say of it.
enum class Doubt {
  kUntyped,       ///< no locus of the run is typed
  kImpossible,    ///< every explanation has a likelihood of 0
  kContradicted,  ///< what the results say of a side, a name or UC, has less than kImprobable
  kOpen,          ///< a side is open
};

/// The most serious one, in the order above; none where nothing is wrong.
std::optional<Doubt> DoubtAbout(const OffspringConfidence& offspring);

/// A doubt in a few words, for a list: "a parent is open".
std::string_view Words(Doubt doubt);

/// The most probable parent of a side that is none of `others`: what competes with them. In the
/// non-sexed flow every candidate may stand on either side. None where the posteriors tell of no
/// other.
std::optional<ProbableParent> NextCandidate(const OffspringConfidence& offspring, Flow flow,
                                            std::size_t side, std::span<const Slot> others);

}  // namespace kaldo
