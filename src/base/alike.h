// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

#include "base/problem.h"
#include "base/warning.h"

namespace kaldo {

/// The same fault in the same file.
inline bool AreAlike(const Problem& one, const Problem& other) {
  return one.kind == other.kind && one.subject == other.subject && one.file == other.file;
}

inline bool AreAlike(const Warning& one, const Warning& other) {
  return one.kind == other.kind && one.file == other.file;
}

/// The same one, found twice.
inline bool AreTheSame(const Problem& one, const Problem& other) {
  return one.line == other.line && one.record == other.record && one.locus == other.locus &&
         (one.record != 0 || !one.locus.empty() || one.found == other.found);
}

inline bool AreTheSame(const Warning& /*one*/, const Warning& /*other*/) { return false; }

/// Some that are alike: the first ones, and how many more there are.
template <typename Found>
struct Alike {
  std::vector<Found> kept;
  std::size_t more = 0;
};

/// Faults or warnings as they are found, those that are alike together. A file of which every
/// genotype is at fault must not fill the memory: of those that are alike the first 1,000 are kept.
/// One of the first may be added again, which changes nothing.
template <typename Found>
class AlikeGroups {
 public:
  void Add(Found found) {
    auto group = std::find_if(groups_.begin(), groups_.end(), [&found](const auto& each) {
      return AreAlike(each.kept.front(), found);
    });
    if (group == groups_.end()) {
      groups_.emplace_back();
      groups_.back().kept.push_back(std::move(found));
    } else if (IsAmongTheFirst(group->kept, found)) {
      return;
    } else if (group->kept.size() < kMostKept) {
      group->kept.push_back(std::move(found));
    } else {
      ++group->more;
    }
  }

  void AddAll(std::vector<Found> all) {
    for (Found& found : all) {
      Add(std::move(found));
    }
  }

  /// Adds all of others, of which none may be alike to one that is here.
  void AddGroups(AlikeGroups others) {
    std::move(others.groups_.begin(), others.groups_.end(), std::back_inserter(groups_));
  }

  /// Lets every one that was kept be completed. Which are alike must not change.
  template <typename Function>
  void Complete(Function complete) {
    for (auto& group : groups_) {
      for (Found& found : group.kept) {
        complete(found);
      }
    }
  }

  bool IsEmpty() const { return groups_.empty(); }

  /// In the order in which the first of each was found.
  const std::vector<Alike<Found>>& Groups() const { return groups_; }

 private:
  static constexpr std::size_t kMostKept = 1000;
  static constexpr std::ptrdiff_t kFirst = 100;

  static bool IsAmongTheFirst(const std::vector<Found>& kept, const Found& found) {
    const auto count = std::min(static_cast<std::ptrdiff_t>(kept.size()), kFirst);
    return std::any_of(kept.begin(), kept.begin() + count,
                       [&found](const Found& each) { return AreTheSame(each, found); });
  }

  std::vector<Alike<Found>> groups_;
};

}  // namespace kaldo
