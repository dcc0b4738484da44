// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/base/flow_page.h"
#include "app/pages/error_page.h"
#include "simulation/simulation_settings.h"

class QLineEdit;
class QTableWidget;

namespace kaldo {

/// One origin of the pseudo-offspring as the screen shows it.
struct OriginShare {
  std::string label;           ///< "C X C :"
  double weight = 0;           ///< its share in the population
  std::int32_t offspring = 0;  ///< pseudo-offspring of an iteration
};

/// How many pseudo-offspring are produced, of which origins, and with which transmission error. The
/// shares of the origins follow the number as it is typed.
class PseudoOffspringPage : public FlowPage {
 public:
  explicit PseudoOffspringPage(Flow flow);

  /// Tells the shares of the origins for a number of pseudo-offspring.
  using Shares = std::function<std::vector<OriginShare>(std::int32_t)>;
  void SetShares(Shares shares);

  void SetNumber(std::int32_t offspring_per_iteration);

  /// The number as typed; 0, which no simulation has, where it cannot be read.
  std::int32_t OffspringPerIteration() const;

  void TellTyped(Problem& problem) const override;

  ErrorModelBox& Box() const { return *box_; }

 private:
  void ShowShares();

  Shares shares_;
  QLineEdit* number_;
  QTableWidget* table_;
  ErrorModelBox* box_;
};

}  // namespace kaldo
