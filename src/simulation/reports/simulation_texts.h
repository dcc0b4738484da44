// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "simulation/figures/subset_figures.h"
#include "simulation/flows/side_code.h"

namespace kaldo {

/// What the parameter lines call the files and numbers of one set of parents.
struct SetTexts {
  std::string_view collected_file;    ///< PARENTAL
  std::string_view collected_number;  ///< PARENTAL
  std::string_view pseudo_collected_sample;
  std::string_view pseudo_collected_number;
  std::string_view uncollected_sample;
  std::string_view uncollected_number;
  std::string_view collected_share;
};

/// How a class of origin, or all classes together, are called in the reports.
struct OriginTexts {
  std::string_view label;         ///< in the distribution of pseudo-offspring
  std::string_view label_text;    ///< what the label stands for
  std::string_view column;        ///< over its column of correct frequencies
  std::string_view block_title;   ///< over its statistics
  std::string_view detailed;      ///< in the detailed file
  std::size_t size_row = 0;       ///< the row of the detailed file that tells the class size
  std::string_view table_file;    ///< the per-iteration table
  std::string_view table_title;   ///< over it
  std::string_view table_word;    ///< over its iteration column
  std::string_view table_spread;  ///< before its row of standard deviations
  std::vector<std::string_view> first_pair_labels;  ///< of OriginStatistics::first_pair
};

/// An average that the head of the summary and the sequence results tell.
struct AverageText {
  std::string_view label;   ///< in the summary
  std::string_view column;  ///< over its column of the sequence results
  double (*value)(const SubsetFigures&) = nullptr;
};

/// Averages that stand together.
struct AverageSection {
  std::string_view title;           ///< in the summary
  std::string_view gap;             ///< between label and value there
  std::string_view sequence_title;  ///< in the sequence results
  std::vector<AverageText> averages;
};

/// All words of a flow's reports, and the names of the files that only it has.
struct SimulationTexts {
  std::string_view parental_type;  ///< "Type of simulations : sexed parental"
  std::string_view pre_parental_type;
  std::vector<SetTexts> sets;
  std::string_view iterations;  ///< the label of their number

  std::vector<std::string_view> group_files;  ///< of kept simulated parents, by parental group
  std::vector<OriginTexts> origins;           ///< class by class, and behind them all together

  // What a decision is called, by SideCode.
  std::array<std::string_view, kSideCodes> allocated;
  std::array<std::string_view, kSideCodes> correct;
  std::string_view both_correct;  ///< the same for a wholly right first row of the summary

  std::string_view averages_head;  ///< before the averages of the summary
  std::vector<AverageSection> averages;
  std::string_view statistics_legend;
  std::string_view statistics_heads;

  // The heads of the per-iteration tables, and the shorter ones of the subset statistics.
  std::vector<std::string_view> columns;
  std::vector<std::string_view> ratio_columns;
  std::vector<std::string_view> short_columns;
  std::vector<std::string_view> short_ratio_columns;

  std::string_view sequence_title;
  std::string_view sequence_legend;

  std::string_view detailed_file;
  std::string_view matrices_file;
  std::string_view closing_sentence;  ///< told when the run is done
};

/// The texts of a flow.
const SimulationTexts& TextsOf(Flow flow);

SimulationTexts NonSexedTexts();
SimulationTexts SexedTexts();

}  // namespace kaldo
