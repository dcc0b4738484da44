// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "app/base/tr.h"

namespace kaldo {

// What the core says and the windows translate, in its words, with %1, %2 for its places. What is
// missing here shows in English, such as the fixed sentences of messages and reports.

/// Whole sentences and words. What stands in their places is shown as it is, such as names.
std::span<const Phrase> CoreSentences();

/// Sentences in whose places the core has put others of its words: "5 pairs", "any allocation".
std::span<const Phrase> CoreFrames();

/// Sentences behind which the core tells where and what, as it is.
std::span<const Phrase> CoreBeginnings();

}  // namespace kaldo
