// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/relatives_note.h"

namespace kaldo {

std::string_view RelativesNote(bool with_relatives, std::optional<double> gain) {
  if (with_relatives) {
    return {};
  }
  if (!gain) {
    return "Not tested whether parents that were not collected are full sibs of collected ones: "
           "there are too many pairs. If they may be, use --relatives.";
  }
  return *gain >= kNotableRelativesGain
             ? "Parents that were not collected seem to be full sibs of collected ones, so that "
               "these probabilities are too high: use --relatives."
             : std::string_view();
}

}  // namespace kaldo
