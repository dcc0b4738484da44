// SPDX-License-Identifier: GPL-3.0-or-later
// One random study as several programs would write it.
#include <map>

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "interchange/import/import_run.h"
#include "tests/support/memory_files.h"

namespace kaldo {
namespace {

/// A cell of one allele or of both as a table writes it.
std::string Joined(const std::vector<std::string>& cells, const std::string& sign) {
  return fmt::format("{}", fmt::join(cells, sign));
}

using Genotypes = std::vector<std::pair<int, int>>;

/// The files that an import of the text writes, all individuals being parents.
std::map<std::string_view, std::string> Imported(const std::string& text) {
  ImportChoices choices;
  choices.files = {{.path = "foreign", .role = Role::kParent}};
  test::MemoryFiles files({{"foreign", text}});
  const auto study = ImportStudy(choices, files);
  RC_ASSERT(study.has_value());
  RC_ASSERT(study->warnings.empty());
  std::map<std::string_view, std::string> written;
  for (const StudyFile& file : study->files) {
    if (file.name != kImportReport && file.name != kImportedNames) {
      written[file.name] = file.text;
    }
  }
  return written;
}

RC_GTEST_PROP(Formats, OfOneStudyGiveTheSameFiles, ()) {
  const auto loci = *rc::gen::inRange<std::size_t>(1, 5);
  const auto individuals = *rc::gen::container<std::vector<Genotypes>>(
      *rc::gen::inRange<std::size_t>(2, 8),
      rc::gen::container<Genotypes>(
          loci, rc::gen::pair(rc::gen::inRange(100, 140), rc::gen::inRange(100, 140))));
  std::string genepop = "title\n";
  std::string wide = "id";
  std::string narrow = "id";
  std::string structure;
  std::string genemapper = "Sample Name\tMarker\tAllele 1\tAllele 2\n";
  for (std::size_t k = 0; k < loci; ++k) {
    genepop += fmt::format("L{}\n", k);
    wide += fmt::format(";L{0}.1;L{0}.2", k);
    narrow += fmt::format(",L{}", k);
    structure += fmt::format("L{} ", k);
  }
  genepop += "POP\n";
  wide += '\n';
  narrow += '\n';
  structure += '\n';
  for (std::size_t i = 0; i < individuals.size(); ++i) {
    std::vector<std::string> joined;
    std::vector<std::string> first;
    std::vector<std::string> second;
    std::vector<std::string> both;
    for (std::size_t k = 0; k < loci; ++k) {
      const auto [one, two] = individuals[i][k];
      joined.push_back(fmt::format("{}{}", one, two));
      first.push_back(fmt::format("{}", one));
      second.push_back(fmt::format("{}", two));
      both.push_back(fmt::format("{};{}", one, two));
      genemapper += fmt::format("A{}\tL{}\t{}\t{}\n", i, k, one, one == two ? "" : second.back());
    }
    genepop += fmt::format("A{}, {}\n", i, Joined(joined, " "));
    wide += fmt::format("A{};{}\n", i, Joined(both, ";"));
    narrow += fmt::format("A{},{}\n", i, Joined(joined, ","));
    structure += fmt::format("A{0} {1}\nA{0} {2}\n", i, Joined(first, " "), Joined(second, " "));
  }
  const auto expected = Imported(genepop);
  for (const std::string& text : {wide, narrow, structure, genemapper}) {
    RC_ASSERT(Imported(text) == expected);
  }
}

}  // namespace
}  // namespace kaldo
