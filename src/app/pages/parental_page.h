// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "app/base/flow_page.h"
#include "app/import/import_offer.h"
#include "simulation/simulation_settings.h"

class QFormLayout;
class QLineEdit;

namespace kaldo {

class FileField;
class OpenedFiles;
struct FieldText;

/// Where the parents of a simulation come from, and how many they are: one set in the non-sexed
/// flow, males and females in the sexed one.
class ParentalPage : public FlowPage {
 public:
  /// `opened` must live as long as the page. `on_imported` is called when files of another program
  /// were converted in their fields.
  ParentalPage(Flow flow, OpenedFiles& opened, ImportOffer::OnImported on_imported);

  /// Shows the fields of the procedure. The names-of-loci file tells what is in the others.
  void Prepare(Procedure procedure, const std::string& loci_file);

  /// Fills the fields.
  void Set(const SimulationSettings& settings);

  /// Fills in the parents that came along with the names of the loci, for the procedure chosen.
  void TakeImported(Procedure procedure, const AllocationSettings& imported);

  /// Files as typed, and the numbers that can be read.
  void FillIn(SimulationSettings& settings) const;

  /// Told when a number cannot be read.
  std::optional<Problem> NumberFault() const;

 private:
  /// The fields of one set of parents. Those of the other procedure are hidden.
  struct SetFields {
    QFormLayout* form = nullptr;
    FileField* collected_file = nullptr;
    FileField* pseudo_collected_sample = nullptr;
    QLineEdit* pseudo_collected = nullptr;
    FileField* uncollected_sample = nullptr;
    QLineEdit* uncollected = nullptr;
    QLineEdit* estimated_collected = nullptr;  ///< sexed flow, as the next
    QLineEdit* estimated_uncollected = nullptr;
  };

  /// A number typed into a field and where it belongs.
  struct NumberRow {
    const QLineEdit* field = nullptr;
    double ParentalSet::*value = nullptr;
    bool whole = false;
  };

  QWidget* NewSet(std::size_t set);
  FileField* NewFile(QFormLayout& form, const FieldText& text, std::size_t set, ImportOffer& offer);

  /// Lets the fields of one kind be converted together: a sample is another study than the parents
  /// collected.
  ImportOffer NewOffer(FileField* SetFields::*field, ImportOffer::OnImported on_imported);
  void FillFields(FileField* SetFields::*field, const AllocationSettings& imported);
  static std::vector<NumberRow> NumbersOf(const SetFields& fields);
  std::span<const SetFields> Sets() const;

  Flow flow_;
  OpenedFiles& opened_;
  Procedure procedure_ = Procedure::kParental;
  std::string loci_file_;
  ImportOffer collected_;
  ImportOffer pseudo_collected_;
  ImportOffer uncollected_;
  std::array<SetFields, 2> sets_{};
};

}  // namespace kaldo
