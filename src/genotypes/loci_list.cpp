// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/loci_list.h"

#include <algorithm>
#include <unordered_map>

#include <fmt/format.h>

#include "genotypes/all_faults.h"
#include "genotypes/capacities.h"
#include "genotypes/name_rules.h"

namespace kaldo {

LociList::LociList(const TokenFile& file) {
  for (const Token& token : file.Tokens()) {
    names_.emplace_back(token.text);
  }
  in_use_.assign(names_.size(), true);
}

std::vector<LocusIndex> LociList::LociInUse() const {
  std::vector<LocusIndex> loci;
  for (std::uint32_t locus = 0; locus < names_.size(); ++locus) {
    if (in_use_[locus]) {
      loci.emplace_back(locus);
    }
  }
  return loci;
}

std::optional<Problem> LociList::Use(const std::vector<std::string>& names) {
  std::vector<bool> in_use(names_.size(), false);
  for (const std::string& name : names) {
    const auto found = std::find(names_.begin(), names_.end(), name);
    if (found == names_.end()) {
      return Problem{.kind = ProblemKind::kUnknownLocus,
                     .found = fmt::format(
                         "{} is none of the {} names of the names-of-loci file: {}", Quoted(name),
                         names_.size(), Escaped(fmt::format("{}", fmt::join(names_, " "))))};
    }
    in_use[static_cast<std::size_t>(found - names_.begin())] = true;
  }
  if (names.empty()) {
    return Problem{.kind = ProblemKind::kNoLocusInUse};
  }
  in_use_ = std::move(in_use);
  return std::nullopt;
}

std::vector<Problem> FindLociFaults(const TokenFile& file) {
  const auto tokens = file.Tokens();
  if (tokens.empty()) {
    return {{.kind = ProblemKind::kNoLocus,
             .file = file.Path(),
             .found = "the file is empty; write one name per locus"}};
  }
  const auto at = [&file](const Token& token, Problem fault) {
    fault.file = file.Path();
    fault.line = token.line;
    fault.locus = token.text.substr(0, kMaxLocusNameLength);
    return fault;
  };
  if (tokens.size() > kMaxLoci) {
    return {at(tokens[kMaxLoci], {.kind = ProblemKind::kTooManyLoci,
                                  .subject = fmt::format("{}", kMaxLoci),
                                  .found = fmt::format("the file names {} loci", tokens.size())})};
  }
  std::vector<Problem> faults;
  std::unordered_map<std::string_view, std::uint32_t> line_of;
  for (const Token& token : tokens) {
    const auto [earlier, is_new] = line_of.emplace(token.text, token.line);
    if (token.text.size() > kMaxLocusNameLength) {
      faults.push_back(at(token, {.kind = ProblemKind::kLocusNameTooLong,
                                  .subject = fmt::format("{}", kMaxLocusNameLength),
                                  .found = fmt::format("{} has {} characters", Quoted(token.text),
                                                       token.text.size())}));
    } else if (auto fault = FaultOfName(token.text)) {
      faults.push_back(at(token, std::move(*fault)));
    } else if (!is_new) {
      faults.push_back(at(token, {.kind = ProblemKind::kLocusNameTwice,
                                  .found = fmt::format("{} stands in line {} already",
                                                       Quoted(token.text), earlier->second)}));
    }
  }
  return faults;
}

std::optional<Problem> CheckLoci(const TokenFile& file) {
  auto faults = FindLociFaults(file);
  return faults.empty() ? std::nullopt : std::optional(std::move(faults.front()));
}

}  // namespace kaldo
