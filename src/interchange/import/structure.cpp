// SPDX-License-Identifier: GPL-3.0-or-later
// STRUCTURE: a line of loci, then per individual two rows with an allele per locus, or one row with
// two. What stands before the genotypes differs from file to file: a name, a population, flags.
#include <algorithm>

#include <fmt/format.h>

#include "base/counted_text.h"
#include "base/problem.h"
#include "interchange/import/foreign_text.h"
#include "interchange/import/format_readers.h"

namespace kaldo {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::size_t kMostLeading = 10;

using FieldsOfLine = std::vector<std::string_view>;

bool NextFullLine(TextLines& lines, TextLine& line, FieldsOfLine& fields) {
  while (lines.Next(line)) {
    fields = WordsBetween(line.text, kBlanks);
    if (!fields.empty()) {
      return true;
    }
  }
  return false;
}

bool IsWholeNumber(std::string_view word) {
  word.remove_prefix(word.starts_with('-') ? 1 : 0);
  return !word.empty() && word.find_first_not_of("0123456789") == std::string_view::npos;
}

/// How the rows of a file are made up.
struct Layout {
  std::size_t loci = 0;
  std::size_t rows = 2;     ///< of an individual
  std::size_t leading = 1;  ///< fields before the genotypes
};

/// The layout with so many rows per individual, if the fields of a line fit it.
std::optional<Layout> LayoutOf(std::size_t loci, std::size_t fields, std::size_t rows) {
  const std::size_t genotypes = rows == 2 ? loci : 2 * loci;
  return fields > genotypes && fields - genotypes <= kMostLeading
             ? std::optional(Layout{loci, rows, fields - genotypes})
             : std::nullopt;
}

/// Lines with genotypes have as many fields, and numbers behind the leading ones.
bool AreGenotypes(const FieldsOfLine& fields, const Layout& layout) {
  const std::size_t genotypes = layout.rows == 2 ? layout.loci : 2 * layout.loci;
  return fields.size() == genotypes + layout.leading &&
         std::all_of(fields.begin() + static_cast<std::ptrdiff_t>(layout.leading), fields.end(),
                     IsWholeNumber);
}

/// The layout that the first lines show: two rows of an individual have the same field at their
/// head. `rows` is what the user says of them, or 0.
std::optional<Layout> FindLayoutIn(std::string_view text, std::size_t rows) {
  TextLines lines(text);
  TextLine line;
  FieldsOfLine heads;
  FieldsOfLine first;
  FieldsOfLine second;
  if (!NextFullLine(lines, line, heads) || !NextFullLine(lines, line, first) ||
      std::all_of(heads.begin(), heads.end(), IsWholeNumber)) {
    return std::nullopt;
  }
  const bool has_second = NextFullLine(lines, line, second);
  for (const std::size_t each : {std::size_t{2}, std::size_t{1}}) {
    const auto layout = LayoutOf(heads.size(), first.size(), each);
    const bool are_alike = has_second && first.front() == second.front();
    const bool looks_so = layout && AreGenotypes(first, *layout) && (each == 1 || are_alike);
    if (layout && (rows == 0 ? looks_so : rows == each)) {
      return layout;
    }
  }
  return std::nullopt;
}

class StructureReader {
 public:
  StructureReader(std::string_view text, StudyBuilder& builder)
      : text_(text), lines_(text), builder_(builder), leading_(builder.Choices().leading) {}

  void Read() {
    FieldsOfLine fields;
    NextFullLine(lines_, line_, fields);
    for (const std::string_view field : fields) {
      loci_.emplace_back(field);
    }
    if (!builder_.SetLoci(loci_) || !NextFullLine(lines_, line_, fields) || !FindLayout(fields)) {
      return;
    }
    do {
      if (!CheckWidth(fields) || !TakeIndividual(fields)) {
        return;
      }
    } while (NextFullLine(lines_, line_, fields));
  }

 private:
  bool FindLayout(const FieldsOfLine& fields) {
    const auto found = FindLayoutIn(text_, builder_.Choices().rows_per_individual);
    if (!found) {
      builder_.Fault(line_.number, "", "",
                     fmt::format("{} and {} fields do not fit: say --rows 1 or --rows 2",
                                 Counted(loci_.size(), "locus", "loci"), fields.size()));
      return false;
    }
    layout_ = *found;
    if (leading_.empty()) {
      leading_.emplace_back("id");
      if (layout_.leading == 2) {
        leading_.emplace_back("group");
      }
    }
    if (leading_.size() != layout_.leading) {
      builder_.Fault(line_.number, "", "",
                     fmt::format("{} before the genotypes: name them with --leading, as in "
                                 "--leading id,group,other",
                                 Counted(layout_.leading, "field stands", "fields stand")));
      return false;
    }
    builder_.Note(fmt::format("{} per individual, before the genotypes: {}",
                              Counted(layout_.rows, "row", "rows"), fmt::join(leading_, ", ")));
    return true;
  }

  bool CheckWidth(const FieldsOfLine& fields) {
    const std::size_t wanted = layout_.leading + loci_.size() * (layout_.rows == 2 ? 1 : 2);
    if (fields.size() != wanted) {
      builder_.Fault(
          line_.number, "", fields.front(),
          fmt::format("it has {} fields, the lines before have {}", fields.size(), wanted));
      return false;
    }
    return true;
  }

  bool TakeIndividual(const FieldsOfLine& fields) {
    if (!builder_.AddIndividual("", line_.number)) {
      return false;
    }
    for (std::size_t k = 0; k < leading_.size(); ++k) {
      if (leading_[k] == "id") {
        builder_.Individual().name = std::string(fields[k]);
      } else if (leading_[k] == "group") {
        builder_.SetPopulation(fields[k]);
      } else if (leading_[k] == "sex") {
        builder_.SetSex({fields[k], line_.number, "sex"});
      } else if (leading_[k] == "role") {
        builder_.SetRole({fields[k], line_.number, "role"});
      }
    }
    const std::uint32_t first_line = line_.number;
    FieldsOfLine second = fields;
    if (layout_.rows == 2 && !TakeSecondRow(fields, second)) {
      return false;
    }
    for (std::size_t k = 0; k < loci_.size(); ++k) {
      const std::size_t step = layout_.rows == 2 ? 1 : 2;
      const std::size_t place = layout_.leading + step * k;
      builder_.SetAlleles(k, {fields[place], first_line, loci_[k]},
                          {second[place + step - 1], line_.number, loci_[k]});
    }
    return true;
  }

  bool TakeSecondRow(const FieldsOfLine& first, FieldsOfLine& second) {
    const auto id = static_cast<std::size_t>(std::find(leading_.begin(), leading_.end(), "id") -
                                             leading_.begin());
    if (!NextFullLine(lines_, line_, second)) {
      builder_.Fault(line_.number, "", builder_.Individual().name, "its second row is missing");
      return false;
    }
    if (!CheckWidth(second)) {
      return false;
    }
    if (id < leading_.size() && second[id] != first[id]) {
      builder_.Fault(line_.number, "", std::string(second[id]),
                     fmt::format("expected the second row of {}; or is it one row per individual "
                                 "(--rows 1)?",
                                 Quoted(first[id])));
      return false;
    }
    return true;
  }

  std::string_view text_;
  TextLines lines_;
  StudyBuilder& builder_;
  std::vector<std::string> leading_;
  TextLine line_;
  std::vector<std::string> loci_;
  Layout layout_;
};

}  // namespace

std::optional<std::string> RecogniseStructure(const ForeignFile& file) {
  const auto layout = FindLayoutIn(*file.text, 0);
  if (!layout) {
    return std::nullopt;
  }
  return fmt::format("the first line names {}, and {} with {} of alleles behind each name",
                     Counted(layout->loci, "locus", "loci"),
                     layout->rows == 2 ? "two rows follow" : "one row follows",
                     layout->rows == 2 ? "one column" : "two columns");
}

void ReadStructure(ForeignFile& file, StudyBuilder& builder) {
  StructureReader(*file.text, builder).Read();
}

}  // namespace kaldo
