// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <vector>

#include "interchange/import/foreign_study.h"
#include "interchange/original_names.h"

namespace kaldo {

/// The names under which a study is written, where the files of a run cannot hold the original
/// ones: too long, with blanks, not unique, or read as something else.
struct StudyNames {
  OriginalNames originals;
  std::map<std::string, std::string> individuals;  ///< by the original name; only those with a code
  std::vector<std::string> loci;                   ///< all, in their order

  const std::string& Individual(const std::string& original) const {
    const auto code = individuals.find(original);
    return code == individuals.end() ? original : code->second;
  }
};

/// An individual gets a code when its name has more than 15 bytes, a blank or a character that
/// cannot be shown, when it begins with "*" or stands for no parent, and when another name begins
/// with the same ten bytes, by which runs tell parents apart. A locus gets one when its name has
/// more than 14 bytes or a blank, or is another's, too.
StudyNames ChooseNames(const ForeignStudy& study);

}  // namespace kaldo
