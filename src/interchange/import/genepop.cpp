// SPDX-License-Identifier: GPL-3.0-or-later
// GENEPOP: a title, the loci, and behind every POP one individual per record: a name, a comma, one
// field per locus.
#include <map>

#include <fmt/format.h>

#include "base/counted_text.h"
#include "base/problem.h"
#include "interchange/import/foreign_text.h"
#include "interchange/import/format_readers.h"

namespace kaldo {

namespace {

constexpr std::string_view kBlanks = " \t";

bool IsPop(std::string_view line) { return Lower(Trimmed(line)) == "pop"; }

/// Walks over a file.
class GenepopReader {
 public:
  GenepopReader(std::string_view text, StudyBuilder& builder) : lines_(text), builder_(builder) {}

  void Read() {
    if (!ReadLoci() || !builder_.SetLoci(loci_)) {
      return;
    }
    digits_.assign(loci_.size(), 0);
    while (lines_.Next(line_)) {
      if (IsPop(line_.text)) {
        CheckRecord();
        ++population_;
        row_ = 0;
      } else if (!Trimmed(line_.text).empty() && !ReadLine()) {
        return;
      }
    }
    CheckRecord();
    NameTheNameless();
  }

 private:
  bool ReadLoci() {
    lines_.Next(line_);  // the title
    while (lines_.Next(line_)) {
      if (IsPop(line_.text)) {
        population_ = 1;
        return true;
      }
      for (const std::string_view word : WordsBetween(line_.text, ",")) {
        if (const auto name = Trimmed(word); !name.empty()) {
          loci_.emplace_back(name);
        }
      }
      if (loci_.size() > kMaxColumns) {
        builder_.Fault(line_.number, "", "", fmt::format("it has more than {} loci", kMaxColumns));
        return false;
      }
    }
    builder_.Fault(line_.number, "", "", "there is no line POP behind the loci");
    return false;
  }

  /// False where nothing that follows can be understood.
  bool ReadLine() {
    std::string_view fields = line_.text;
    if (const std::size_t comma = fields.rfind(','); comma != std::string_view::npos) {
      CheckRecord();
      if (!Begin(fields.substr(0, comma))) {
        return false;
      }
      fields.remove_prefix(comma + 1);
    } else if (!is_open_) {
      builder_.Fault(line_.number, "", "",
                     "there is no comma between the name of an individual and its genotypes");
      return false;
    }
    for (const std::string_view word : WordsBetween(fields, kBlanks)) {
      if (locus_ == loci_.size()) {
        builder_.Fault(line_.number, "", builder_.Individual().name,
                       fmt::format("it has more fields than there are loci ({})", loci_.size()));
        break;
      }
      TakeField(word);
      ++locus_;
    }
    is_open_ = locus_ < loci_.size();
    return true;
  }

  bool Begin(std::string_view name) {
    is_open_ = true;
    locus_ = 0;
    ++row_;
    if (!builder_.AddIndividual(name, line_.number)) {
      return false;
    }
    builder_.SetPopulation(fmt::format("pop{}", population_));
    rows_.push_back({population_, row_, builder_.Individual().name});
    ++uses_[builder_.Individual().name];
    return true;
  }

  void TakeField(std::string_view word) {
    const std::string& locus = loci_[locus_];
    const std::string& name = builder_.Individual().name;
    const bool is_number = word.find_first_not_of("0123456789") == std::string_view::npos;
    if (is_number && (word.size() == 2 || word.size() == 3)) {
      builder_.Fault(line_.number, locus, name,
                     Quoted(word) + " holds one allele: haploid genotypes have no two parents");
      return;
    }
    if (is_number && word.size() != 4 && word.size() != 6) {
      builder_.Fault(
          line_.number, locus, name,
          fmt::format("{} has {} digits; two alleles have 4 or 6", Quoted(word), word.size()));
      return;
    }
    std::size_t& digits = digits_[locus_];
    digits = digits == 0 && is_number ? word.size() : digits;
    if (is_number && word.size() != digits) {
      builder_.Fault(line_.number, locus, name,
                     fmt::format("{} has {} digits, the fields of the locus before have {}",
                                 Quoted(word), word.size(), digits));
      return;
    }
    builder_.SetGenotype(locus_, {word, line_.number, locus});
  }

  /// Tells a record that ends before its loci do.
  void CheckRecord() {
    if (is_open_) {
      builder_.Fault(
          builder_.Individual().line, "", builder_.Individual().name,
          fmt::format("it has {} of {}", locus_, Counted(loci_.size(), "locus", "loci")));
    }
    is_open_ = false;
  }

  /// Many files name the individuals of a population all alike, or not at all.
  void NameTheNameless() {
    std::size_t renamed = 0;
    for (std::size_t k = 0; k < rows_.size(); ++k) {
      const auto& row = rows_[k];
      if (!row.name.empty() && uses_[row.name] == 1) {
        continue;
      }
      ForeignIndividual& individual = builder_.IndividualOfFile(k);
      if (builder_.Choices().unique_names) {
        builder_.Fault(individual.line, "", row.name,
                       row.name.empty() ? "it has no name" : "its name stands in the file again");
      }
      individual.name = fmt::format("pop{}_row{}", row.population, row.row);
      while (uses_.contains(individual.name)) {
        individual.name += '_';
      }
      ++renamed;
    }
    if (renamed > 0) {
      builder_.Note(
          fmt::format("{} a name that others bear too, or none, and got one by population "
                      "and row, such as pop2_row7",
                      Counted(renamed, "individual had", "individuals had")));
    }
  }

  struct RowName {
    std::size_t population;
    std::size_t row;
    std::string name;
  };

  TextLines lines_;
  StudyBuilder& builder_;
  TextLine line_;
  std::vector<std::string> loci_;
  std::vector<std::size_t> digits_;  ///< per locus, of both alleles
  std::size_t population_ = 0;
  std::size_t row_ = 0;
  std::size_t locus_ = 0;
  bool is_open_ = false;
  std::vector<RowName> rows_;
  std::map<std::string, std::size_t> uses_;
};

}  // namespace

std::optional<std::string> RecogniseGenepop(const ForeignFile& file) {
  TextLines lines(*file.text);
  TextLine line;
  while (lines.Next(line)) {
    if (line.number > 2 && IsPop(line.text)) {
      return fmt::format("line {} is POP, behind the names of loci", line.number);
    }
  }
  return std::nullopt;
}

void ReadGenepop(ForeignFile& file, StudyBuilder& builder) {
  GenepopReader(*file.text, builder).Read();
}

}  // namespace kaldo
