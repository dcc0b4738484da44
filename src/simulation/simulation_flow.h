// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "simulation/iteration_counts.h"
#include "simulation/origin_class.h"
#include "simulation/simulation_settings.h"
#include "simulation/spread.h"

namespace kaldo {

struct SimulationInput;

/// What one kind of parental group is: its file in the project folder, and which set of the
/// settings it belongs to.
struct GroupDesign {
  std::size_t set = 0;
  bool collected = false;
  std::string_view file;  ///< where its simulated parents are kept
};

/// The global rows of the detailed figures.
enum class GlobalRows {
  kPooled,    ///< all pseudo-offspring of the iteration together
  kWeighted,  ///< the classes weighed by their share in the population
};

/// What is fixed for a flow: groups, classes, figures and their names.
struct SimulationDesign {
  Flow flow = Flow::kNonSexed;

  /// In the order in which they are drawn and stand in the parent table; collected groups first.
  std::vector<GroupDesign> groups;
  std::vector<OriginClass> classes;

  GlobalRows global_rows = GlobalRows::kPooled;
  std::string_view global_label;        ///< in the detailed file
  std::size_t global_size_row = 0;      ///< as OriginTexts::size_row
  std::string_view global_block_title;  ///< over the statistics, with its text
  std::string_view statistics_heads;    ///< the column heads of the statistics
  std::string_view both_correct_label;  ///< what the first row calls "both correct" there

  SpreadKind row_spread = SpreadKind::kSteps;      ///< of row frequencies and correct frequencies
  SpreadKind table_spread = SpreadKind::kSquares;  ///< of the per-iteration tables

  std::vector<std::string_view> columns;        ///< of the per-iteration tables
  std::vector<std::string_view> ratio_columns;  ///< ratios of the first columns to all assigned
  std::size_t assigned_columns = 0;             ///< leading columns that sum to "all assigned"
  bool classes_have_ratios = false;             ///< else only the global table has them
  std::vector<std::string_view> short_columns;  ///< the same in the subset statistics
  std::vector<std::string_view> short_ratio_columns;
  std::string_view global_file;
  std::string_view global_title;
  std::string_view global_word;
  std::string_view global_deviation;

  std::size_t figures = 0;             ///< number of weighted figures
  std::size_t any_correct_figure = 0;  ///< which of them is the frequency of correct decisions

  std::string_view detailed_file;
  std::string_view matrices_file;
  std::string_view closing_sentence;
};

/// What differs between the two flows beyond data: how figures are formed and a few lines of text.
class SimulationFlow {
 public:
  SimulationFlow() = default;
  SimulationFlow(const SimulationFlow&) = delete;
  SimulationFlow& operator=(const SimulationFlow&) = delete;
  SimulationFlow(SimulationFlow&&) = delete;
  SimulationFlow& operator=(SimulationFlow&&) = delete;
  virtual ~SimulationFlow() = default;

  virtual const SimulationDesign& Design() const = 0;

  /// The share of each class in the population, from the settings and the collected parents of each
  /// set; and the pseudo-offspring of each class in an iteration, truncated.
  virtual std::vector<double> Weights(const SimulationSettings& settings,
                                      std::span<const double> collected) const = 0;
  virtual std::vector<std::int32_t> ClassSizes(const SimulationSettings& settings,
                                               std::span<const double> collected) const = 0;

  /// The figures of one class in one iteration that are weighed over the classes.
  virtual void FillFigures(const OriginClass& origin, const ClassCounts& counts,
                           std::span<double> figures) const = 0;

  /// The columns of the per-iteration table of one class, in shares of its pseudo-offspring.
  virtual void FillColumns(const ClassCounts& counts, std::span<double> columns) const = 0;

  /// Further frequencies of a class below its rows in the summary, by their labels; none in the
  /// sexed flow. The global block has its own, one at most.
  virtual std::vector<std::string_view> ExtraLabels(const OriginClass& origin) const = 0;
  virtual double ExtraFrequency(const OriginClass& origin, const ClassCounts& counts,
                                std::size_t extra) const = 0;
  virtual std::vector<std::string_view> GlobalExtraLabels() const = 0;
  virtual double GlobalExtraFrequency(const IterationCounts& counts) const = 0;

  /// "Type of simulations : sexed parental", without line end.
  virtual std::string_view TypeLine(Procedure procedure) const = 0;

  /// The parameter lines from the files to the proportions.
  virtual std::string ParameterHead(const SimulationSettings& settings,
                                    const SimulationInput& input) const = 0;
  /// The sections of the summary between the parameters and the table of correct frequencies, and
  /// the legend behind that table.
  virtual std::string AverageLines(std::span<const double> figures) const = 0;
  virtual std::string StatisticsLegend() const = 0;

  /// The sections of the sequence results behind the combinations, with the figures of each
  /// combination; and their title.
  virtual std::string SequenceSections(
      std::span<const std::vector<double>> figures_of_combinations) const = 0;
  virtual std::string_view SequenceTitle() const = 0;
  virtual std::string_view SequenceLegend() const = 0;
};

}  // namespace kaldo
