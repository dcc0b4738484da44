// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include "base/number_text.h"
#include "simulation/reports/parameter_block.h"
#include "simulation/reports/simulation_report_texts.h"

namespace kaldo {

namespace {

/// A figure of a class, or that the class has no pseudo-offspring.
std::string Figure(double value, bool is_empty) {
  return is_empty ? std::string(kNotAvailable) : FormatDouble(value);
}

std::string SpreadText(const Spread& spread, bool is_empty) {
  return Figure(spread.mean, is_empty) + '\t' + Figure(spread.deviation, is_empty);
}

/// The frequencies of correct decisions, class by class and global, in all iterations.
class CorrectFrequencies {
 public:
  CorrectFrequencies(const SimulationInput& input, const SimulationDesign& design,
                     Iterations iterations)
      : input_(input), design_(design), iterations_(iterations) {}

  std::string Lines() const {
    std::string text =
        "DISTRIBUTION OF CORRECT ALLOCATION FREQUENCIES ACCORDING TO PARENTAL ORIGIN :\n"
        "Correct :\t--->  correct allocation to a (pseudo)collected parent\n"
        "\t--->  non-allocation (UC) when parent is indeed uncollected\n\n\nIteration # :\t";
    for (const OriginClass& origin : design_.classes) {
      text.append("\t").append(origin.texts.column);
    }
    text += "\t   GLOBAL\n\n\n";
    for (std::size_t i = 0; i < iterations_.size(); ++i) {
      const IterationCounts& counts = iterations_[i];
      text += Row(std::to_string(i + 1), [&](std::size_t k) { return Value(counts, k); });
    }
    text += '\n' + Row("Average", [this](std::size_t k) { return SpreadOfColumn(k).mean; });
    return text + Row("SD", [this](std::size_t k) { return SpreadOfColumn(k).deviation; }) +
           "\n\n\n";
  }

 private:
  /// The frequency of class k; behind the last class the global one.
  double Value(const IterationCounts& counts, std::size_t k) const {
    return k == design_.classes.size() ? GlobalCorrectFrequency(design_, input_, counts)
                                       : CorrectFrequency(design_.classes[k], counts.at(k));
  }

  Spread SpreadOfColumn(std::size_t k) const {
    return SpreadOver(iterations_, design_.row_spread,
                      [&](const IterationCounts& counts) { return Value(counts, k); });
  }

  template <typename ValueOf>
  std::string Row(const std::string& word, ValueOf value_of) const {
    std::string row = word + '\t';
    for (std::size_t k = 0; k <= design_.classes.size(); ++k) {
      const bool is_empty = k < design_.classes.size() && input_.class_sizes[k] == 0;
      row += '\t' + Figure(value_of(k), is_empty);
    }
    return row + '\n';
  }

  const SimulationInput& input_;
  const SimulationDesign& design_;
  Iterations iterations_;
};

/// One line per kind of decision; a label that repeats the one above is left out.
template <typename SpreadOfRow>
std::string RowLines(const SimulationDesign& design, const OriginClass& origin, bool is_empty,
                     SpreadOfRow spread_of) {
  std::string lines;
  std::string_view above;
  for (std::size_t row = 0; row < origin.rows.size(); ++row) {
    const OriginRow& kind = origin.rows[row];
    const bool all_right = row == 0 && kind.weight == 2;
    lines += fmt::format("{}\t{}\t{}\n", kind.allocated_label == above ? "" : kind.allocated_label,
                         all_right ? design.both_correct_label : kind.correct_label,
                         SpreadText(spread_of(row), is_empty));
    above = kind.allocated_label;
  }
  return lines;
}

template <typename SpreadOfExtra>
std::string ExtraLines(std::span<const std::string_view> labels, bool is_empty,
                       SpreadOfExtra spread_of) {
  std::string lines;
  for (std::size_t extra = 0; extra < labels.size(); ++extra) {
    lines += fmt::format("{}\t{}\t{}\n", extra == 0 ? "\nFirst pair :" : "", labels[extra],
                         SpreadText(spread_of(extra), is_empty));
  }
  return lines;
}

std::string BlockHead(const SimulationDesign& design, std::string_view title, std::int32_t size) {
  return fmt::format("{}\nNumber of pseudo-offspring generated per iteration : {}\n{}", title, size,
                     design.statistics_heads);
}

std::string FrequencyCorrectLine(const Spread& spread, bool is_empty) {
  return fmt::format("\n\nFrequency correct :\t\t{}\n", SpreadText(spread, is_empty));
}

std::string ClassBlock(const SimulationInput& input, const SimulationFlow& flow,
                       Iterations iterations, std::size_t k) {
  const SimulationDesign& design = flow.Design();
  const OriginClass& origin = design.classes[k];
  const bool is_empty = input.class_sizes[k] == 0;
  const auto spread = [&](auto value_of_class) {
    return SpreadOver(iterations, design.row_spread,
                      [&](const IterationCounts& counts) { return value_of_class(counts.at(k)); });
  };
  const std::string title =
      fmt::format("{}\t{}", origin.texts.block_title, origin.texts.block_text);
  const auto labels = flow.ExtraLabels(origin);
  return BlockHead(design, title, input.class_sizes[k]) +
         RowLines(design, origin, is_empty,
                  [&](std::size_t row) {
                    return spread([row](const ClassCounts& counts) {
                      return counts.Share(counts.rows.at(row));
                    });
                  }) +
         FrequencyCorrectLine(
             spread([&](const ClassCounts& counts) { return CorrectFrequency(origin, counts); }),
             is_empty) +
         ExtraLines(labels, is_empty,
                    [&](std::size_t extra) {
                      return spread([&](const ClassCounts& counts) {
                        return flow.ExtraFrequency(origin, counts, extra);
                      });
                    }) +
         "\n\n";
}

std::string GlobalBlock(const SimulationInput& input, const SimulationFlow& flow,
                        Iterations iterations) {
  const SimulationDesign& design = flow.Design();
  const auto spread = [&](auto value_of) {
    return SpreadOver(iterations, design.row_spread, value_of);
  };
  const OriginClass& rows = design.classes.front();
  const auto labels = flow.GlobalExtraLabels();
  return BlockHead(design, design.global_block_title,
                   static_cast<std::int32_t>(input.OffspringPerIteration())) +
         RowLines(design, rows, false,
                  [&](std::size_t row) {
                    return spread([&](const IterationCounts& counts) {
                      return GlobalRowFrequency(design, input, counts, rows.rows[row]);
                    });
                  }) +
         FrequencyCorrectLine(spread([&](const IterationCounts& counts) {
                                return GlobalCorrectFrequency(design, input, counts);
                              }),
                              false) +
         ExtraLines(labels, false,
                    [&](std::size_t /*extra*/) {
                      return spread([&](const IterationCounts& counts) {
                        return flow.GlobalExtraFrequency(counts);
                      });
                    }) +
         "\n\n";
}

}  // namespace

std::string SummaryReport(const SimulationSettings& settings, const SimulationInput& input,
                          const SimulationFlow& flow, const SimulationResult& result) {
  const SimulationDesign& design = flow.Design();
  std::string text = ParameterBlock(settings, input, flow, result);
  text += flow.AverageLines(result.LastSubset().figures);
  text += CorrectFrequencies(input, design, result.iterations).Lines();
  text += "STATISTICS OVER ALL ITERATIONS :\n" + flow.StatisticsLegend() + "\n\n";
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    text += ClassBlock(input, flow, result.iterations, k);
  }
  return text + GlobalBlock(input, flow, result.iterations) + result.subset_statistics;
}

}  // namespace kaldo
