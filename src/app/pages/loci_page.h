// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "app/base/flow_page.h"
#include "app/base/tr.h"
#include "genotypes/capacities.h"

class QCheckBox;
class QLineEdit;

namespace kaldo {

/// The choice-of-loci screen: a row per locus with its name and whether it is in use.
class LociPage : public FlowPage {
 public:
  LociPage(const ScreenEntry& entry, Phrase caption);

  /// Labels the rows. Other names than before put all loci in use.
  void SetNames(const std::vector<std::string>& names);

  /// Marks these loci, or all of them where nothing is said.
  void SetInUse(const std::optional<std::vector<std::string>>& names);
  void SetSequenceWanted(bool wanted);

  const std::vector<std::string>& Names() const { return names_; }

  /// The names in use; nothing stands for all of them.
  std::optional<std::vector<std::string>> InUse() const;
  bool SequenceWanted() const;

 private:
  struct Row {
    QLineEdit* name = nullptr;
    QCheckBox* in_use = nullptr;
  };

  QWidget* NewRows();
  void ShowRows();

  std::vector<std::string> names_;
  std::array<Row, kMaxLoci> rows_{};
  QCheckBox* all_;
  QCheckBox* sequence_;
};

}  // namespace kaldo
