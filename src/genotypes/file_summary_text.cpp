// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include <fmt/format.h>

#include "base/counted_text.h"
#include "genotypes/capacities.h"
#include "genotypes/file_summary.h"

namespace kaldo {

namespace {

constexpr std::size_t kShownNameBytes = 20;
constexpr std::size_t kShownLoci = 5;

std::string Words(std::size_t count) { return Counted(count, "word", "words"); }

std::string LociCount(std::size_t count) { return Counted(count, "locus", "loci"); }

/// A name short enough for a line, and without bytes that would break it.
std::string Shown(std::string_view name) {
  return Escaped(name.substr(0, kShownNameBytes)) + (name.size() > kShownNameBytes ? "..." : "");
}

std::string Where(const FilePlace& place) {
  return fmt::format("line {} ({})", place.line, Shown(place.individual));
}

std::string LeftoverText(const FileSummary& summary) {
  return fmt::format("the number of words does not fit {}: {} left over{}{}",
                     LociCount(summary.loci), Words(summary.leftover_words),
                     summary.misshapen ? ", see " : "",
                     summary.misshapen ? Where(*summary.misshapen) : "");
}

std::string NoGenotypeText(const FileSummary& summary) {
  if (summary.misshapen) {
    return fmt::format("{} does not hold a name and {}", Where(*summary.misshapen),
                       Counted(summary.loci, "genotype", "genotypes"));
  }
  const Sighting& found = summary.not_digits;
  if (found.count == 1) {
    return fmt::format("{} is no genotype, see {}", Quoted(found.first.word), Where(found.first));
  }
  return fmt::format("{} fields are no genotypes, first {} in {}", found.count,
                     Quoted(found.first.word), Where(found.first));
}

/// Where fields of several widths are mixed, the rarest are the ones to look at.
std::string MixedDigitsText(const std::map<std::size_t, Sighting>& digits) {
  const auto rarest = std::min_element(
      digits.begin(), digits.end(),
      [](const auto& one, const auto& other) { return one.second.count < other.second.count; });
  return fmt::format("fields of {} {} {} digits, see {}", digits.begin()->first,
                     digits.size() == 2 ? "and" : "to", digits.rbegin()->first,
                     Where(rarest->second.first));
}

/// What is wrong with the numbers of digits; empty when nothing is.
std::string DigitsFault(const std::map<std::size_t, Sighting>& digits) {
  if (digits.size() > 1) {
    return MixedDigitsText(digits);
  }
  if (!digits.empty() && digits.begin()->first % 2 != 0) {
    return fmt::format("{} per field: both alleles need the same number of digits",
                       Counted(digits.begin()->first, "digit", "digits"));
  }
  if (!digits.empty() && digits.begin()->first > 2 * kMaxAlleleDigits) {
    return fmt::format("{} digits per field: an allele has at most {}", digits.begin()->first,
                       kMaxAlleleDigits);
  }
  return {};
}

/// What a run would refuse, the fault from which others follow first; empty when nothing is.
std::string FaultOf(const FileSummary& summary) {
  if (summary.words == 0) {
    return "the file is empty";
  }
  if (summary.leftover_words != 0) {
    return LeftoverText(summary);
  }
  if (summary.individuals == 0) {
    return "no individual, only separators";
  }
  if (summary.not_digits.count != 0) {
    return NoGenotypeText(summary);
  }
  if (auto fault = DigitsFault(summary.digits); !fault.empty()) {
    return fault;
  }
  if (summary.half_defined.count != 0) {
    return fmt::format("{} with only one allele defined, first {} in {}",
                       Counted(summary.half_defined.count, "genotype", "genotypes"),
                       Quoted(summary.half_defined.first.word), Where(summary.half_defined.first));
  }
  if (summary.long_names.count != 0) {
    return fmt::format("{} of more than {} characters, first in {}",
                       Counted(summary.long_names.count, "name", "names"), kMaxNameLength,
                       Where(summary.long_names.first));
  }
  if (summary.individuals + summary.separators > kMaxIndividuals) {
    return fmt::format("more than {} individuals: {}", kMaxIndividuals, summary.individuals);
  }
  return {};
}

std::string GroupsText(const FileSummary& summary) {
  if (summary.separators == 0) {
    return {};
  }
  const std::string empty =
      summary.empty_groups == 0 ? "" : fmt::format(" ({} empty)", summary.empty_groups);
  return fmt::format(" in {} groups{}", summary.separators + 1, empty);
}

/// A name twice is allowed, and mostly a slip of the pen.
std::string TwiceText(const FileSummary& summary) {
  if (summary.repeated_names == 0) {
    return {};
  }
  std::vector<std::string> names;
  for (const std::string& name : summary.name_twice) {
    names.push_back(Shown(name));
  }
  return fmt::format("; {} twice: {}{}", summary.repeated_names == 1 ? "name" : "names",
                     fmt::join(names, ", "),
                     summary.repeated_names > summary.name_twice.size() ? ", ..." : "");
}

}  // namespace

std::string SummaryLine(const FileSummary& summary) {
  if (auto fault = FaultOf(summary); !fault.empty()) {
    return fault;
  }
  std::string line = Counted(summary.individuals, "individual", "individuals") +
                     GroupsText(summary) + ", " + LociCount(summary.loci);
  if (!summary.digits.empty()) {
    line += fmt::format(", {} digits per field", summary.digits.begin()->first);
  }
  const std::string missing =
      summary.missing.count == 0
          ? "no missing genotypes"
          : Counted(summary.missing.count, "missing genotype", "missing genotypes");
  return line + ", " + missing + TwiceText(summary);
}

std::string DescribeGenotypeFile(const std::string& path, const std::string& loci_path,
                                 Separators separators, const FileOpener& open) {
  if (path.empty()) {
    return {};
  }
  const auto file = open(path, kMaxInputBytes);
  if (!file) {
    return "cannot be read: " + file.error().found;
  }
  const auto unread = [&](std::string_view advice) {
    return fmt::format("{}; {} to see what is in it", Words(file->Tokens().size()), advice);
  };
  if (loci_path.empty()) {
    return unread("choose the names-of-loci file");
  }
  const auto loci = open(loci_path, kMaxLociBytes);
  if (!loci || CheckLoci(*loci)) {
    return unread("correct the names-of-loci file");
  }
  return SummaryLine(Summarize(*file, {loci->Tokens().size(), separators}));
}

std::string DescribeLociFile(const std::string& path, const FileOpener& open) {
  if (path.empty()) {
    return {};
  }
  const auto file = open(path, kMaxLociBytes);
  if (!file) {
    return "cannot be read: " + file.error().found;
  }
  const auto tokens = file->Tokens();
  if (const auto problem = CheckLoci(*file)) {
    return SentenceOf(*problem) + ' ' + problem->found;
  }
  std::vector<std::string> names;
  for (const Token& token : tokens.first(std::min(tokens.size(), kShownLoci))) {
    names.push_back(Shown(token.text));
  }
  return fmt::format("{}: {}{}", LociCount(tokens.size()), fmt::join(names, ", "),
                     tokens.size() > kShownLoci ? ", ..." : "");
}

bool IsGenotypeFileAtFault(const std::string& path, const std::string& loci_path,
                           Separators separators, const FileOpener& open) {
  if (path.empty()) {
    return false;
  }
  const auto file = open(path, kMaxInputBytes);
  if (!file || IsLociFileAtFault(loci_path, open)) {
    return !file;
  }
  if (loci_path.empty()) {
    return false;
  }
  const std::size_t loci = open(loci_path, kMaxLociBytes)->Tokens().size();
  return !FaultOf(Summarize(*file, {loci, separators})).empty();
}

bool IsLociFileAtFault(const std::string& path, const FileOpener& open) {
  if (path.empty()) {
    return false;
  }
  const auto file = open(path, kMaxLociBytes);
  return !file || CheckLoci(*file).has_value();
}

}  // namespace kaldo
