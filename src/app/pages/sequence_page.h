// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "app/base/flow_page.h"
#include "genotypes/capacities.h"

class QLabel;
class QLayout;
class QLineEdit;

namespace kaldo {

/// The "Cumulative Sequence" screen: for each locus the position at which it enters the sequence.
///
/// Object names: "Index1" and on, "OrderByInformation", "OrderNote".
class SequencePage : public FlowPage {
 public:
  SequencePage();

  /// Labels the fields and fills them with the file order 1, 2, ...
  void SetNames(const std::vector<std::string>& names);
  void SetIndices(const std::vector<std::int32_t>& indices);

  /// Called when the loci are to be ordered by what they tell.
  void SetOnOrder(std::function<void()> on_order) { on_order_ = std::move(on_order); }

  /// Says in a line how the positions came about, until they are others.
  void Tell(const QString& note);

  /// The positions as typed, one per locus. What is no whole number reads as 0, which no sequence
  /// may have.
  std::vector<std::int32_t> Indices() const;

  void TellTyped(Problem& problem) const override;

 private:
  struct Row {
    QLabel* name = nullptr;
    QLineEdit* index = nullptr;
  };

  QLayout* NewOrderRow();

  std::size_t number_of_loci_ = 0;
  std::array<Row, kMaxLoci> rows_{};
  std::function<void()> on_order_;
  QLabel* note_;
};

}  // namespace kaldo
