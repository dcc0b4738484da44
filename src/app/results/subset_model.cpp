// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/subset_model.h"

#include <algorithm>
#include <cmath>

#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/data_table.h"
#include "app/results/simulation_summary.h"
#include "simulation/reports/estimate_texts.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

namespace {

using Column = SubsetColumn;

/// For each word that was typed, which loci have it in their names.
std::vector<std::vector<bool>> LociOfWords(const LociList& loci, const QString& words) {
  std::vector<std::vector<bool>> of_words;
  for (const QString& word : words.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    std::vector<bool>& here = of_words.emplace_back();
    for (const std::string& name : loci.Names()) {
      here.push_back(Text(name).contains(word, Qt::CaseInsensitive));
    }
  }
  return of_words;
}

bool HasAll(const LocusSubset& subset, const std::vector<std::vector<bool>>& of_words) {
  return std::all_of(of_words.begin(), of_words.end(), [&subset](const std::vector<bool>& word) {
    return std::any_of(subset.begin(), subset.end(),
                       [&word](LocusIndex locus) { return word[locus.Value()]; });
  });
}

}  // namespace

SubsetModel::SubsetModel(SharedSimulation simulation, QObject* parent)
    : QAbstractTableModel(parent),
      simulation_(std::move(simulation)),
      best_(BestSubsets(Subsets())),
      ranks_(Subsets().size()) {
  std::uint32_t rank = 0;
  for (const std::size_t subset : RankSubsets(Subsets())) {
    ranks_[subset] = rank++;
  }
  Arrange();
}

bool SubsetModel::IsBest(std::size_t subset) const {
  const auto found = best_.find(Subsets()[subset].loci.size());
  return found != best_.end() && found->second == subset;
}

void SubsetModel::Choose(const SubsetChoice& choice) {
  choice_ = choice;
  Arrange();
}

void SubsetModel::sort(int column, Qt::SortOrder order) {
  sorted_by_ = static_cast<Column>(column);
  order_ = order;
  Arrange();
}

/// Picks the subsets to show and puts them into order.
void SubsetModel::Arrange() {
  beginResetModel();
  shown_.clear();
  const auto of_words = LociOfWords(simulation_->run.input.loci, choice_.loci);
  for (std::size_t subset = 0; subset < Subsets().size(); ++subset) {
    const LocusSubset& loci = Subsets()[subset].loci;
    const bool fits = (!choice_.size || loci.size() == *choice_.size) &&
                      (!choice_.only_best || IsBest(subset)) && HasAll(loci, of_words);
    if (fits) {
      shown_.push_back(static_cast<std::uint32_t>(subset));
    }
  }
  SortShown();
  endResetModel();
}

/// Equals stay in the order of the run.
void SubsetModel::SortShown() {
  const auto sort_by = [this](auto key_of) {
    std::stable_sort(shown_.begin(), shown_.end(), [&](std::uint32_t a, std::uint32_t b) {
      return order_ == Qt::AscendingOrder ? key_of(a) < key_of(b) : key_of(b) < key_of(a);
    });
  };
  switch (sorted_by_) {
    case Column::kLoci:
      sort_by([this](std::size_t subset) { return Subsets()[subset].loci.size(); });
      break;
    case Column::kAnyCorrect:
      sort_by([this](std::size_t subset) { return Subsets()[subset].probabilities.any; });
      break;
    case Column::kRank:
      sort_by([this](std::size_t subset) { return ranks_[subset]; });
      break;
    case Column::kError:
      sort_by([this](std::size_t subset) { return ErrorOf(subset); });
      break;
    case Column::kBest:
      // The best of each size by size, and then the others by rank.
      sort_by([this](std::size_t subset) {
        const std::size_t place = IsBest(subset) ? Subsets()[subset].loci.size() : ranks_[subset];
        return std::pair(!IsBest(subset), place);
      });
      break;
    case Column::kNames:
      sort_by([this](std::size_t subset) -> const LocusSubset& { return Subsets()[subset].loci; });
      break;
    default:
      sort_by([](std::size_t subset) { return subset; });
      break;
  }
}

int SubsetModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int SubsetModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(Column::kCount);
}

double SubsetModel::ErrorOf(std::size_t subset) const {
  return EstimateOfKind(Subsets()[subset].estimates.population, AllocationKind::kAny).error;
}

QString SubsetModel::CellText(Column column, std::size_t subset) const {
  const LocusSubset& loci = Subsets()[subset].loci;
  switch (column) {
    case Column::kPlace:
      return QString::number(subset + 1);
    case Column::kLoci:
      return QString::number(loci.size());
    case Column::kAnyCorrect:
      return ShortNumber(Subsets()[subset].probabilities.any);
    case Column::kRank:
      return QString::number(ranks_[subset] + 1);
    case Column::kError:
      return std::isnan(ErrorOf(subset)) ? Text("NA") : ShortNumber(ErrorOf(subset));
    case Column::kBest:
      return IsBest(subset) ? Tr("\u2605 best of %1").arg(loci.size()) : QString();
    default:
      return Text(NamesOf(simulation_->run.input.loci, loci));
  }
}

QVariant SubsetModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const auto column = static_cast<Column>(index.column());
  if (role == Qt::DisplayRole) {
    return CellText(column, shown_[static_cast<std::size_t>(index.row())]);
  }
  if (role == Qt::TextAlignmentRole && column <= Column::kError) {
    return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  }
  return {};
}

QVariant SubsetModel::headerData(int section, Qt::Orientation orientation, int role) const {
  static constexpr std::array<Phrase, 7> kHeads = {
      Phrase("No."), Phrase("Rank"), Phrase("Loci"), Phrase("Any correct"),
      Phrase("se"),  Phrase("Best"), Phrase("Names")};
  static constexpr std::array<Phrase, 7> kTips = {
      Phrase("Place in the order of the run."),
      Phrase("Place when the subset with which allocations are most often correct comes first; of "
             "equals "
             "that of fewer loci."),
      Phrase("Number of loci."),
      Phrase("Estimated probability that any allocation is correct, in the population."),
      Phrase("Standard error of the estimated probability."),
      Phrase("Which subset of its size makes allocations most often correct; the first of equals."),
      Phrase("The loci of the subset.")};
  if (orientation != Qt::Horizontal) {
    return {};
  }
  const auto place = static_cast<std::size_t>(section);
  if (role == Qt::DisplayRole) {
    return Tr(kHeads.at(place));
  }
  if (role == Qt::ToolTipRole) {
    return Tr(kTips.at(place));
  }
  if (role == Qt::TextAlignmentRole && static_cast<Column>(section) <= Column::kError) {
    return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  }
  return {};
}

}  // namespace kaldo
