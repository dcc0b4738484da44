// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "app/import/import_offer.h"
#include "interchange/import/import_run.h"

class QCheckBox;
class QFormLayout;

namespace kaldo {

/// What the rules of an import say of their options, in the words of the fields of this screen.
QString InWordsOfFields(const std::string& text);

/// The choices of an import beyond its files, with a field for each: those that a first try asks
/// for, and on request all that the format has a use for.
///
/// Object names: "Import" and the name of the field, for instance "ImportMissingParents";
/// "ImportMore".
class ImportFields : public QWidget {
 public:
  ImportFields(ImportNeed need, std::function<void()> on_change);

  /// Puts what is chosen into the choices, or tells what is not understood.
  std::optional<std::string> FillIn(ImportChoices& choices) const;

  /// Shows the fields that matter after a try. `asked` are its faults and warnings; with `open`
  /// populations may be those of offspring.
  void ShowNeeded(const ImportTry& tried, const std::string& asked, bool open);

 private:
  QWidget* NewField(std::size_t place);
  QWidget* NewPopulations();
  void ShowPopulations(const std::vector<CountedPopulation>& populations);
  void ShowHeads(const std::vector<std::string>& heads);
  void ShowRows();
  bool IsShown(std::size_t place) const;

  /// What is typed, chosen or ticked; nothing where the field says nothing.
  std::optional<std::string> Said(std::string_view option) const;
  std::vector<std::string> TickedPopulations() const;

  ImportNeed need_;
  std::function<void()> on_change_;
  QFormLayout* form_;
  QCheckBox* more_;
  std::map<std::string_view, QWidget*> fields_;  ///< by their options
  std::string asked_;                            ///< what the last try asked for
  std::string format_;                           ///< of the first file, by its name
  bool has_populations_ = false;                 ///< that may be of offspring
};

}  // namespace kaldo
