// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include "base/number_text.h"
#include "simulation/reports/simulation_report_texts.h"

namespace kaldo {

namespace {

/// The rows of one class, or of the global figures, in one iteration.
struct DetailedRows {
  const OriginClass* origin = nullptr;  ///< gives the kinds of decisions
  std::string_view label;
  std::size_t size_row = 0;  ///< the row that tells the size
  std::int32_t size = 0;
  bool is_empty = false;
  std::vector<double> frequencies;
  double correct = 0;
};

std::string Figure(double value, bool is_empty) {
  return is_empty ? std::string(kNotAvailable) : FormatDouble(value);
}

std::string RowLines(const DetailedRows& rows) {
  std::string lines;
  std::string_view above;
  for (std::size_t row = 0; row < rows.frequencies.size(); ++row) {
    const OriginRow& kind = rows.origin->rows[row];
    const bool repeats = kind.allocated_label == above;
    above = kind.allocated_label;
    if (row == 0) {
      lines += std::string(rows.label) + "\t\t\t\t";
    } else if (row + 1 == rows.size_row) {
      lines += fmt::format("\t# of offspring = {}{}", rows.size, repeats ? "\t\t\t\t" : "\t\t\t");
    } else {
      lines += "\t\t\t\t";
    }
    lines += fmt::format("{}\t{}\t{}\n", repeats ? "" : kind.allocated_label, kind.correct_label,
                         Figure(rows.frequencies[row], rows.is_empty));
  }
  return lines;
}

/// How the frequency of correct decisions follows from the rows.
std::string FormulaLine(const DetailedRows& rows) {
  std::vector<std::string> terms;
  for (std::size_t row = 0; row < rows.frequencies.size(); ++row) {
    terms.push_back(fmt::format("{}x{}", rows.origin->rows[row].weight,
                                Figure(rows.frequencies[row], rows.is_empty)));
  }
  return fmt::format("     ( {} )/2 = {}\n", fmt::join(terms, " + "),
                     Figure(rows.correct, rows.is_empty));
}

std::string Block(const DetailedRows& rows, bool has_formula) {
  return RowLines(rows) +
         fmt::format("\n\n     Frequency of correct allocation or non allocation : {}\n",
                     Figure(rows.correct, rows.is_empty)) +
         (has_formula ? FormulaLine(rows) : "") + "\n\n\n";
}

std::string ClassBlock(const SimulationInput& input, const SimulationDesign& design,
                       const ClassCounts& counts, std::size_t k) {
  const OriginClass& origin = design.classes[k];
  DetailedRows rows{&origin,
                    origin.texts.detailed,
                    origin.texts.size_row,
                    input.class_sizes[k],
                    input.class_sizes[k] == 0,
                    {},
                    CorrectFrequency(origin, counts)};
  for (std::size_t row = 0; row < origin.rows.size(); ++row) {
    rows.frequencies.push_back(counts.Share(counts.rows.at(row)));
  }
  return Block(rows, true);
}

std::string GlobalBlock(const SimulationInput& input, const SimulationDesign& design,
                        const IterationCounts& counts) {
  const OriginClass& kinds = design.classes.front();
  DetailedRows rows{&kinds,
                    design.global_label,
                    design.global_size_row,
                    static_cast<std::int32_t>(input.OffspringPerIteration()),
                    false,
                    {},
                    GlobalCorrectFrequency(design, input, counts)};
  for (const OriginRow& row : kinds.rows) {
    rows.frequencies.push_back(GlobalRowFrequency(design, input, counts, row));
  }
  return Block(rows, false);
}

}  // namespace

std::string DetailedReport(const SimulationInput& input, const SimulationFlow& flow,
                           const SimulationResult& result) {
  const SimulationDesign& design = flow.Design();
  std::string text;
  for (std::size_t i = 0; i < result.iterations.size(); ++i) {
    text += fmt::format(
        "Iteration n° : {}\n"
        "Parental origin\t\t\t\tCollected\tCollected\n"
        "\t\t\t\tAllocated\tCorrect\tFrequency\n",
        i + 1);
    for (std::size_t k = 0; k < design.classes.size(); ++k) {
      text += ClassBlock(input, design, result.iterations[i].at(k), k);
    }
    text += GlobalBlock(input, design, result.iterations[i]);
  }
  return text;
}

}  // namespace kaldo
