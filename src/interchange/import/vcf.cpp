// SPDX-License-Identifier: GPL-3.0-or-later
// VCF of callers of short tandem repeats: a head, then one line per locus with its alleles, as
// sequences or as numbers of repeats, and the call of every sample.
#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "base/counted_text.h"
#include "base/number_text.h"
#include "base/problem.h"
#include "interchange/import/foreign_text.h"
#include "interchange/import/format_readers.h"

namespace kaldo {

namespace {

using Fields = std::vector<std::string_view>;

// The columns of a record; those of the samples follow.
constexpr std::size_t kChromosome = 0;
constexpr std::size_t kPosition = 1;
constexpr std::size_t kId = 2;
constexpr std::size_t kReference = 3;
constexpr std::size_t kAlternatives = 4;
constexpr std::size_t kFilter = 6;
constexpr std::size_t kInfo = 7;
constexpr std::size_t kFormat = 8;
constexpr std::size_t kFirstSample = 9;

constexpr std::string_view kPasses = "PASS";

std::string NameOf(const Fields& record) {
  return record[kId] != "." ? std::string(record[kId])
                            : fmt::format("{}_{}", record[kChromosome], record[kPosition]);
}

/// The value behind a key, "RU=CAG;REF=19"; empty where there is none.
std::string_view InfoIn(const Fields& record, std::string_view key) {
  for (const std::string_view word : WordsBetween(record[kInfo], ";")) {
    if (word.starts_with(key) && word.substr(key.size()).starts_with('=')) {
      return word.substr(key.size() + 1);
    }
  }
  return {};
}

bool AreBases(std::string_view allele) {
  return !allele.empty() && allele.find_first_not_of("ACGTNacgtn") == std::string_view::npos;
}

/// A length in base pairs as a cell would hold it; empty where nothing tells it.
std::string LengthText(std::string_view repeats, std::size_t unit) {
  const auto count = ParseInteger(repeats);
  return count && *count > 0 && unit > 0
             ? fmt::format("{}", static_cast<std::size_t>(*count) * unit)
             : std::string();
}

/// The alleles of a record and their lengths.
struct RecordAlleles {
  Fields names;
  std::vector<std::string> lengths;  ///< empty where the record does not tell it
  std::size_t unit = 0;              ///< base pairs of a repeat; 0 where it is not told
  bool is_snp = false;
};

RecordAlleles AllelesIn(const Fields& record) {
  RecordAlleles alleles;
  alleles.names = {record[kReference]};
  for (const std::string_view each : WordsBetween(record[kAlternatives], ",")) {
    if (each != ".") {
      alleles.names.push_back(each);
    }
  }
  alleles.unit = InfoIn(record, "RU").size();
  const std::string_view counted = InfoIn(record, "REF");
  const bool has_symbols = std::any_of(alleles.names.begin(), alleles.names.end(),
                                       [](std::string_view name) { return name.starts_with('<'); });
  // The reference may be one base that only tells the place, and its repeats stand elsewhere.
  const bool is_one_base = record[kReference].size() == 1;
  const bool are_counts = has_symbols ? is_one_base || !counted.empty()
                                      : is_one_base && alleles.unit > 0 && !counted.empty();
  for (const std::string_view name : alleles.names) {
    const bool is_reference = alleles.lengths.empty();
    if (is_reference && are_counts) {
      alleles.lengths.push_back(LengthText(counted, alleles.unit));
    } else if (name.starts_with("<STR") && name.ends_with('>')) {
      alleles.lengths.push_back(LengthText(name.substr(4, name.size() - 5), alleles.unit));
    } else {
      alleles.lengths.push_back(AreBases(name) ? fmt::format("{}", name.size()) : "");
    }
  }
  alleles.is_snp = !are_counts && std::all_of(alleles.names.begin(), alleles.names.end(),
                                              [](auto name) { return name.size() == 1; });
  return alleles;
}

/// The part of a call with that key, by the keys of the record; empty where there is none.
std::string_view PartOf(std::string_view call, const Fields& keys, std::string_view key) {
  const auto place = std::find(keys.begin(), keys.end(), key);
  const auto parts = WordsBetween(call, ":");
  const auto k = static_cast<std::size_t>(place - keys.begin());
  return k < parts.size() && place != keys.end() ? parts[k] : std::string_view();
}

class VcfReader {
 public:
  VcfReader(std::string_view text, StudyBuilder& builder) : text_(text), builder_(builder) {}

  void Read() {
    std::vector<std::string> loci;
    const bool is_whole = ForEachRecord([&](const Fields& record) {
      loci.push_back(NameOf(record));
      return loci.size() <= kMaxColumns;
    });
    if (loci.size() > kMaxColumns) {
      builder_.Fault(line_.number, "", "",
                     fmt::format("it has more than {} records: keep those of the loci that you "
                                 "need",
                                 kMaxColumns));
      return;
    }
    if (!is_whole || !builder_.SetLoci(loci)) {
      return;
    }
    for (const std::string& sample : samples_) {
      if (!builder_.AddIndividual(sample, head_line_)) {
        return;
      }
    }
    builder_.Note(
        "sizes are the lengths of the alleles in the file, without the flanks that fragments have");
    std::size_t locus = 0;
    ForEachRecord([&](const Fields& record) {
      if (builder_.IsWanted(locus)) {
        TakeRecord(record, locus, loci[locus]);
      }
      ++locus;
      return true;
    });
  }

 private:
  /// False where a line cannot be understood, and ends it.
  template <typename Take>
  bool ForEachRecord(Take take) {
    TextLines lines(text_);
    bool has_head = false;
    while (lines.Next(line_)) {
      if (line_.text.starts_with("##") || Trimmed(line_.text).empty()) {
        continue;
      }
      const Fields fields = WordsBetween(line_.text, "\t");
      if (!has_head) {
        if (!TakeHead(fields)) {
          return false;
        }
        has_head = true;
      } else if (fields.size() != kFirstSample + samples_.size()) {
        builder_.Fault(line_.number, "", "",
                       fmt::format("it has {} columns, the heads are {}: is the file whole?",
                                   fields.size(), kFirstSample + samples_.size()));
        return false;
      } else if (!take(fields)) {
        return false;
      }
    }
    return true;
  }

  bool TakeHead(const Fields& fields) {
    if (fields.front() != "#CHROM" || fields.size() <= kFirstSample || fields.size() == kMaxWords) {
      builder_.Fault(line_.number, "", "",
                     "expected the line of heads, #CHROM to FORMAT and the samples");
      return false;
    }
    samples_.assign(fields.begin() + kFirstSample, fields.end());
    head_line_ = line_.number;
    return true;
  }

  void TakeRecord(const Fields& record, std::size_t locus, const std::string& name) {
    const RecordAlleles alleles = AllelesIn(record);
    const Fields keys = WordsBetween(record[kFormat], ":");
    if (alleles.is_snp) {
      builder_.Fault(line_.number, name, "",
                     "it is a SNP: single bases have no sizes; name the loci to be kept with "
                     "--loci");
      return;
    }
    if (record[kFilter] != kPasses && record[kFilter] != ".") {
      builder_.Warn(fmt::format("locus {} did not pass the filters of the caller: {}", name,
                                record[kFilter]));
    }
    std::size_t filtered = 0;
    for (std::size_t k = 0; k < samples_.size(); ++k) {
      const std::string_view call = record[kFirstSample + k];
      const bool is_called = TakeCall(call, keys, alleles, {k, locus}, name);
      for (const std::string_view key : {"FT", "FILTER"}) {
        const std::string_view filter = PartOf(call, keys, key);
        filtered += is_called && !filter.empty() && filter != kPasses && filter != "." ? 1U : 0U;
      }
    }
    if (filtered > 0) {
      builder_.Warn(fmt::format("locus {}: {} did not pass the filters of the caller", name,
                                Counted(filtered, "genotype", "genotypes")));
    }
  }

  struct Place {
    std::size_t sample;
    std::size_t locus;
  };

  /// False where nothing is called.
  bool TakeCall(std::string_view call, const Fields& keys, const RecordAlleles& alleles,
                Place place, const std::string& name) {
    ForeignIndividual& individual = builder_.IndividualOfFile(place.sample);
    const std::string_view genotype = PartOf(call, keys, "GT");
    const Fields called = WordsBetween(genotype, "/|");
    if (std::all_of(called.begin(), called.end(),
                    [](std::string_view allele) { return allele == "."; })) {
      return false;
    }
    if (called.size() != 2) {
      builder_.Fault(line_.number, name, individual.name,
                     fmt::format("{} is no genotype of two alleles{}", Quoted(genotype),
                                 called.size() == 1 ? ": haploid ones have no two parents" : ""));
      return true;
    }
    const Fields counts = WordsBetween(PartOf(call, keys, "REPCN"), "/,|");
    std::array<std::string, 2> sizes;
    for (std::size_t k = 0; k < sizes.size(); ++k) {
      const auto size = SizeOf(called[k], alleles, counts.size() == 2 ? counts[k] : "");
      if (!size) {
        builder_.Fault(line_.number, name, individual.name, size.error());
        return true;
      }
      sizes.at(k) = *size;
    }
    builder_.SetAlleles(individual, place.locus, {sizes.front(), line_.number, name},
                        {sizes.back(), line_.number, name});
    return true;
  }

  /// Of a called allele; "." where it is missing.
  static tl::expected<std::string, std::string> SizeOf(std::string_view called,
                                                       const RecordAlleles& alleles,
                                                       std::string_view repeats) {
    if (called == ".") {
      return ".";
    }
    const auto number = ParseInteger(called);
    if (!number || *number < 0 || static_cast<std::size_t>(*number) >= alleles.names.size()) {
      return tl::unexpected(
          fmt::format("there is no allele {} among {}", Quoted(called), alleles.names.size()));
    }
    const auto allele = static_cast<std::size_t>(*number);
    const std::string& length = alleles.lengths[allele];
    const std::string counted = length.empty() ? LengthText(repeats, alleles.unit) : length;
    if (counted.empty() && alleles.names[allele] != "*") {
      return tl::unexpected(
          fmt::format("nothing tells the length of allele {}: wanted are sequences, or numbers of "
                      "repeats and INFO/RU",
                      Quoted(alleles.names[allele])));
    }
    return counted.empty() ? "." : counted;
  }

  std::string_view text_;
  StudyBuilder& builder_;
  TextLine line_;
  std::vector<std::string> samples_;
  std::uint32_t head_line_ = 0;
};

}  // namespace

std::optional<std::string> RecogniseVcf(const ForeignFile& file) {
  if (!file.text->starts_with("##fileformat=VCF")) {
    return std::nullopt;
  }
  return "it begins with ##fileformat=VCF";
}

void ReadVcf(ForeignFile& file, StudyBuilder& builder) { VcfReader(*file.text, builder).Read(); }

}  // namespace kaldo
